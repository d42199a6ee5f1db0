#ifndef ZV_LOGGER_H
#define ZV_LOGGER_H

#include <memory>

#include "zvCoreObject.h"
#include "zvLogLevel.h"
#include "zvString.h"

class zvLogChannel;

/// The process's log: a singleton that passes messages to the logging library under one fixed logger name.
///
/// The logging library is configured on first use from "log4cxx.xml" in the folder "config" of the gateway
/// home; without it messages are dropped. Logging never throws. Not thread-safe on first use: call
/// getInstance() before starting threads.
///
/// `file` is the source file of the call and `line` its line; both are passed to the logging library, and the
/// file's name also prefixes the message. A copy shares its original's channel.
class ZV_EXPORT zvLogger : public zvCoreObjectCommon {
public:
    /// The instance, owned by the class and created on first use; null while it is being created, and when
    /// there is no memory for it, until a later call finds some.
    static zvLogger* getInstance();
    /// Deletes the instance, if any; a later getInstance() creates a new one.
    static void destroyInstance();

    void logDebug(const zvString& message, const char* file, int line);
    void logInfo(const zvString& message, const char* file, int line);
    void logWarn(const zvString& message, const char* file, int line);
    void logError(const zvString& message, const char* file, int line);
    void logFatal(const zvString& message, const char* file, int line);
    /// Written regardless of the configured threshold.
    void logAlways(const zvString& message, const char* file, int line);
    /// One of the above.
    void log(zvLogLevel level, const zvString& message, const char* file, int line);

    /// Whether messages are written: if not, callers need not compose them.
    bool isReady() const;

protected:
    zvLogger();
    ~zvLogger() override;

private:
    static zvLogger* m_pzvLogger;
    static bool m_bInitializing;

    std::shared_ptr<zvLogChannel> m_pChannel;
};

#endif
