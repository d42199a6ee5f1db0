#ifndef ZV_LOG_CHANNEL_H
#define ZV_LOG_CHANNEL_H

#include "zvString.h"

/// One logger name's way into the logging library, which is configured when the channel is made.
///
/// Without a gateway home, or when the logging library refuses the configuration, a channel is never ready
/// and drops its messages.
class zvLogChannel {
public:
    explicit zvLogChannel(const zvString& name);
    zvLogChannel(const zvLogChannel&) = delete;
    zvLogChannel& operator=(const zvLogChannel&) = delete;
    virtual ~zvLogChannel();

    /// Each writes "file name[line] message"; a null `file` and one without a folder give no such prefix.
    virtual void logDebug(const char* message, const char* file, int line);
    virtual void logInfo(const char* message, const char* file, int line);
    virtual void logWarn(const char* message, const char* file, int line);
    virtual void logError(const char* message, const char* file, int line);
    virtual void logFatal(const char* message, const char* file, int line);
    virtual void logAlways(const char* message, const char* file, int line);

    bool isReady() const { return m_bReady; }

private:
    using LibraryFunction = void (*)(const char* loggerName, const char* message, const char* file, int line);

    void forward(LibraryFunction write, const char* message, const char* file, int line) const;

    static constexpr int loggerNameCapacity = 1027;

    bool m_bReady;
    char m_loggerName[loggerNameCapacity];
};

#endif
