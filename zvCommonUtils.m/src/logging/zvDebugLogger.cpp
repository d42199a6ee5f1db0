#include "zvDebugLogger.h"

#include <exception>
#include <functional>
#include <map>

#include "zvKeptString.h"
#include "zvLogChannel.h"

namespace {

using LoggerMap = std::map<zvKeptString, zvDebugLogger*, std::less<>>;

// Created with the first logger and never destroyed: the loggers may be used until the process exits, also by
// static destructors.
LoggerMap* mapLoggers = nullptr;

}  // namespace

zvDebugLogger::zvDebugLogger(const zvString& name) : m_pChannel(std::make_shared<zvLogChannel>(name)) {}

zvDebugLogger::~zvDebugLogger() = default;

zvDebugLogger* zvDebugLogger::getInstance(const zvString& name) {
    try {
        if (mapLoggers == nullptr) {
            mapLoggers = new LoggerMap;
        }
        zvDebugLogger*& logger = (*mapLoggers)[zvKeptString(name)];
        if (logger == nullptr) {
            logger = new zvDebugLogger(name);
        }
        return logger;
    } catch (const std::exception&) {
        return nullptr;
    }
}

void zvDebugLogger::destroyInstance(const zvString& name) {
    if (mapLoggers == nullptr) {
        return;
    }
    const auto found = mapLoggers->find(name);
    if (found != mapLoggers->end() && found->second != nullptr) {
        found->second->m_pChannel.reset();
    }
}

void zvDebugLogger::logMsg(const zvString& message, const char* file, int line) {
    if (m_pChannel != nullptr) {
        m_pChannel->log(zvLogLevel::debug, message, file, line);
    }
}
