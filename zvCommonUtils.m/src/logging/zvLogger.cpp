#include "zvLogger.h"

#include "zvCharString.h"
#include "zvLogChannel.h"
#include "zvLogSource.h"

namespace {

constexpr char loggerName[] = "com.qrsl.products.lkbridge.product";

using ChannelOperation = void (zvLogChannel::*)(const char*, const char*, int);

// Nothing is converted for a channel that would drop it.
void forward(zvLogChannel* channel, ChannelOperation operation, const zvString& message, const char* file,
             int line) {
    if (channel != nullptr && channel->isReady()) {
        (channel->*operation)(zvCharString(message).data(), file, line);
    }
}

}  // namespace

zvLogger* zvLogger::m_pzvLogger = nullptr;
bool zvLogger::m_bInitializing = false;

zvLogger::zvLogger() : m_pChannel(std::make_shared<zvLogChannel>(loggerName)) {}

zvLogger::~zvLogger() = default;

zvLogger* zvLogger::getInstance() {
    if (m_pzvLogger == nullptr && !m_bInitializing) {
        // Whatever logs while the instance is being created, further up this stack, goes without a logger.
        m_bInitializing = true;
        m_pzvLogger = new zvLogger;
        m_bInitializing = false;
    }
    return m_pzvLogger;
}

void zvLogger::destroyInstance() {
    delete m_pzvLogger;
    m_pzvLogger = nullptr;
}

bool zvLogger::isReady() const { return m_pChannel != nullptr && m_pChannel->isReady(); }

void zvLogger::logDebug(const zvString& message, const char* file, int line) {
    forward(m_pChannel.get(), &zvLogChannel::logDebug, message, file, line);
}

void zvLogger::logInfo(const zvString& message, const char* file, int line) {
    forward(m_pChannel.get(), &zvLogChannel::logInfo, message, file, line);
}

void zvLogger::logWarn(const zvString& message, const char* file, int line) {
    forward(m_pChannel.get(), &zvLogChannel::logWarn, message, file, line);
}

void zvLogger::logError(const zvString& message, const char* file, int line) {
    forward(m_pChannel.get(), &zvLogChannel::logError, message, file, line);
}

void zvLogger::logFatal(const zvString& message, const char* file, int line) {
    forward(m_pChannel.get(), &zvLogChannel::logFatal, message, file, line);
}

void zvLogger::logAlways(const zvString& message, const char* file, int line) {
    forward(m_pChannel.get(), &zvLogChannel::logAlways, message, file, line);
}
