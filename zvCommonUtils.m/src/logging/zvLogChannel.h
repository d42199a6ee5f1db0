#ifndef ZV_LOG_CHANNEL_H
#define ZV_LOG_CHANNEL_H

#include "zvString.h"

/// Writes to the logging library under one logger name; the constructor initialises the library.
///
/// Without a gateway home, or if the logging library refuses the configuration, the channel is not ready and
/// drops its messages.
class zvLogChannel {
public:
    explicit zvLogChannel(const zvString& name);
    zvLogChannel(const zvLogChannel&) = delete;
    zvLogChannel& operator=(const zvLogChannel&) = delete;
    virtual ~zvLogChannel();

    /// Each writes "file name[line] message", without the prefix if `file` is null or a bare name.
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
