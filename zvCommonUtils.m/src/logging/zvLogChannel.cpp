#include "zvLogChannel.h"

#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include "zvGatewayHome.h"
#include "zvKeptText.h"
#include "zvLoggerLibrary.h"
#include "zvPath.h"

namespace {

// In the order of zvLogLevel.
using ChannelOperation = void (zvLogChannel::*)(const char*, const char*, int);
constexpr ChannelOperation operations[] = {&zvLogChannel::logDebug, &zvLogChannel::logInfo,
                                           &zvLogChannel::logWarn,  &zvLogChannel::logError,
                                           &zvLogChannel::logFatal, &zvLogChannel::logAlways};

}  // namespace

zvLogChannel::zvLogChannel(const zvString& name) : m_bReady(false), m_loggerName() {
    std::snprintf(m_loggerName, sizeof(m_loggerName), "%s", zvKeptText::Narrow(name).data());
    const zvString home = zvGatewayHome::getPath();
    if (!home.empty()) {
        m_bReady =
            InitializeLogger(zvKeptText::Narrow(zvGatewayHome::configFile(home, "log4cxx.xml")).data());
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

void zvLogChannel::log(zvLogLevel level, const zvString& message, const char* file, int line) {
    if (!m_bReady) {  // nothing is converted for a channel that would drop it
        return;
    }
    try {
        (this->*operations[static_cast<int>(level)])(zvKeptText::Narrow(message).data(), file, line);
    } catch (const std::exception&) {
        // There is nobody to tell.
    }
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
