#ifndef ZV_LOG_CHECK_H
#define ZV_LOG_CHECK_H

#include <xercesc/dom/DOMElement.hpp>

#include "zvCheckReport.h"
#include "zvXMLParser.h"

/// Looks at a home's "log4cxx.xml": whether the logging library takes it, and whether the files that it names
/// can be written. None of them is made or changed.
class zvLogCheck {
public:
    /// From now on nothing is logged, although the environment names a home: a log is a change of the home.
    static void keepSilent();

    zvLogCheck(const zvString& file, zvCheckReport& report) : m_strFile(file), m_report(report) {}

    void run();

private:
    void checkAppender(zvXMLParser& parser, xercesc::DOMElement* appender, const zvString& folder);
    void checkLogFile(const zvString& path, zvTextPosition position);
    void askLibrary(zvXMLParser& parser, const zvString& home);

    const zvString m_strFile;
    zvCheckReport& m_report;
    int m_logFiles = 0;
};

#endif
