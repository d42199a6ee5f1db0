#include "zvDebugLogger.h"

#include "zvCharString.h"
#include "zvLogChannel.h"
#include "zvTemplateMap.h"

namespace {

using LoggerMap = zvTemplateMap<zvString, zvDebugLogger*>;

// Never destroyed: the loggers may be used until the process exits, also by static destructors.
LoggerMap& mapLoggers() {
    static auto* const loggers = new LoggerMap;
    return *loggers;
}

}  // namespace

zvDebugLogger::zvDebugLogger(const zvString& name) : m_pChannel(std::make_shared<zvLogChannel>(name)) {}

zvDebugLogger::~zvDebugLogger() = default;

zvDebugLogger* zvDebugLogger::getInstance(const zvString& name) {
    zvDebugLogger* logger = nullptr;
    if (!mapLoggers().find(name, logger) || logger == nullptr) {
        logger = new zvDebugLogger(name);
        mapLoggers().insert(name, logger);
    }
    return logger;
}

void zvDebugLogger::destroyInstance(const zvString& name) {
    zvDebugLogger* logger = nullptr;
    if (mapLoggers().find(name, logger) && logger != nullptr) {
        logger->m_pChannel.reset();
    }
}

void zvDebugLogger::logMsg(const zvString& message, const char* file, int line) {
    if (m_pChannel != nullptr && m_pChannel->isReady()) {
        m_pChannel->logDebug(zvCharString(message).data(), file, line);
    }
}
