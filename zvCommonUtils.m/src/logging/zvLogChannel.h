#ifndef ZV_LOG_CHANNEL_H
#define ZV_LOG_CHANNEL_H

#include "zvLogLevel.h"
#include "zvString.h"

/// Writes to the logging library under one logger name; the constructor initialises the library.
///
/// Without a gateway home, or if the logging library refuses the configuration, the channel is not ready and
/// drops its messages. The constructor throws std::bad_alloc when out of memory, before the logging library
/// gets a path that is cut short.
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

    /// The operation of that level, with the message as narrow text. Never throws: without memory the message
    /// is lost.
    void log(zvLogLevel level, const zvString& message, const char* file, int line);

    bool isReady() const { return m_bReady; }

private:
    using LibraryFunction = void (*)(const char* loggerName, const char* message, const char* file, int line);

    void forward(LibraryFunction write, const char* message, const char* file, int line) const;

    static constexpr int loggerNameCapacity = 1027;

    bool m_bReady;
    char m_loggerName[loggerNameCapacity];
};

#endif
