#include "zvLogger.h"

#include <exception>

#include "zvKeptText.h"
#include "zvLogChannel.h"

namespace {

constexpr char loggerName[] = "com.qrsl.products.lkbridge.product";

}  // namespace

zvLogger* zvLogger::m_pzvLogger = nullptr;
bool zvLogger::m_bInitializing = false;

zvLogger::zvLogger() : m_pChannel(std::make_shared<zvLogChannel>(zvKeptText::widen(loggerName))) {}

zvLogger::~zvLogger() = default;

zvLogger* zvLogger::getInstance() {
    if (m_pzvLogger == nullptr && !m_bInitializing) {
        // Whatever logs while the instance is being created, further up this stack, goes without a logger.
        m_bInitializing = true;
        try {
            m_pzvLogger = new zvLogger;
        } catch (const std::exception&) {
            // Without memory there is no logger now; the next call tries again.
        }
        m_bInitializing = false;
    }
    return m_pzvLogger;
}

void zvLogger::destroyInstance() {
    delete m_pzvLogger;
    m_pzvLogger = nullptr;
}

bool zvLogger::isReady() const { return m_pChannel != nullptr && m_pChannel->isReady(); }

void zvLogger::log(zvLogLevel level, const zvString& message, const char* file, int line) {
    if (m_pChannel != nullptr) {
        m_pChannel->log(level, message, file, line);
    }
}

void zvLogger::logDebug(const zvString& message, const char* file, int line) {
    log(zvLogLevel::debug, message, file, line);
}

void zvLogger::logInfo(const zvString& message, const char* file, int line) {
    log(zvLogLevel::info, message, file, line);
}

void zvLogger::logWarn(const zvString& message, const char* file, int line) {
    log(zvLogLevel::warn, message, file, line);
}

void zvLogger::logError(const zvString& message, const char* file, int line) {
    log(zvLogLevel::error, message, file, line);
}

void zvLogger::logFatal(const zvString& message, const char* file, int line) {
    log(zvLogLevel::fatal, message, file, line);
}

void zvLogger::logAlways(const zvString& message, const char* file, int line) {
    log(zvLogLevel::always, message, file, line);
}
