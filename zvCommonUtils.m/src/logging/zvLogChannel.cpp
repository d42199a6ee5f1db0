#include "zvLogChannel.h"

#include <cstdio>
#include <string>
#include <string_view>

#include "zvCharString.h"
#include "zvGatewayHome.h"
#include "zvLoggerLibrary.h"
#include "zvPath.h"

zvLogChannel::zvLogChannel(const zvString& name) : m_bReady(false), m_loggerName() {
    std::snprintf(m_loggerName, sizeof(m_loggerName), "%s", zvCharString(name).data());
    const zvString home = zvGatewayHome::getPath();
    if (!home.empty()) {
        m_bReady = InitializeLogger(zvCharString(zvGatewayHome::configFile(home, "log4cxx.xml")).data());
    }
}

zvLogChannel::~zvLogChannel() = default;

void zvLogChannel::logDebug(const char* message, const char* file, int line) {
    forward(LogDebugMessage, message, file, line);
}

void zvLogChannel::logInfo(const char* message, const char* file, int line) {
    forward(LogInfoMessage, message, file, line);
}

void zvLogChannel::logWarn(const char* message, const char* file, int line) {
    forward(LogWarnMessage, message, file, line);
}

void zvLogChannel::logError(const char* message, const char* file, int line) {
    forward(LogErrorMessage, message, file, line);
}

void zvLogChannel::logFatal(const char* message, const char* file, int line) {
    forward(LogFatalMessage, message, file, line);
}

void zvLogChannel::logAlways(const char* message, const char* file, int line) {
    forward(LogAlwaysMessage, message, file, line);
}

void zvLogChannel::forward(LibraryFunction write, const char* message, const char* file, int line) const {
    if (!m_bReady) {
        return;
    }
    const std::string_view fileName = zvPath::fileName(std::string_view(file == nullptr ? "" : file));
    if (fileName.empty()) {
        write(m_loggerName, message, file, line);
        return;
    }
    std::string located(fileName);
    located.append("[").append(std::to_string(line)).append("] ").append(message);
    write(m_loggerName, located.c_str(), file, line);
}
