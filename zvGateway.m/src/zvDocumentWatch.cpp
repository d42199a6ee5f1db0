#include "zvDocumentWatch.h"

#include <cstring>

#include "zvConsole.h"
#include "zvLogger.h"

zvDocumentWatch::zvDocumentWatch() { zvLogger::setListener(this); }

zvDocumentWatch::~zvDocumentWatch() { zvLogger::setListener(nullptr); }

void zvDocumentWatch::hear(zvLogLevel level, const zvString& message, const char* file, int) {
    if (level == zvLogLevel::warn && std::strcmp(file, "zvXMLUtils.m/src/zvDOMErrorHandler") == 0) {
        m_strComplaint = zvConsole::printable(message);
    }
    if (level == zvLogLevel::error) {
        m_strError = zvConsole::printable(message);
    }
}
