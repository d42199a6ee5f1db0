#ifndef ZV_LOGGER_LIBRARY_H
#define ZV_LOGGER_LIBRARY_H

#include "zvExport.h"

/// The interface of the logging library. A site may replace the default library with its own: the first seven
/// functions are called. The eighth, SetLogEventId(), may be missing: a program that works on events looks it
/// up.
///
/// Strings are null-terminated, in the multibyte encoding of the process's locale, and need not outlive the
/// call. The functions are thread-safe and may be called at any time, including the destruction of static
/// objects at process exit. Without a valid configuration, or with a null logger name or message, nothing is
/// written. Failures are not returned: the first one is reported on standard error. A log file that cannot be
/// opened is one, told in one line with its path and the reason; each later line tries again.
extern "C" {

/// Configures the logging system from the log4cxx configuration file at `configurationPath`, a path with "\"
/// or "/" as separator. Idempotent for the same path; another path replaces the configuration.
/// @return false if the file is missing or invalid or has no appender, which leaves an earlier configuration
/// in place. Errors in the file are written to standard error; a missing file is not reported. A log file
/// that cannot be opened gives false too if the environment variable GATEWAY_LOG_REQUIRED is set, to anything
/// but nothing.
ZV_LOGGER_API bool InitializeLogger(const char* configurationPath);

/// Writes one event of the level to the logger `loggerName`, with `file` and `line` as its location; `file`
/// may be null.
ZV_LOGGER_API void LogDebugMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogInfoMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogWarnMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogErrorMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogFatalMessage(const char* loggerName, const char* message, const char* file, int line);
/// Writes regardless of the thresholds of logger and appender.
ZV_LOGGER_API void LogAlwaysMessage(const char* loggerName, const char* message, const char* file, int line);

/// Sets the identity of the event that the calling thread works on from now on; null or an empty text for
/// none. Every line of the thread carries it: as %X{EventId} in the layout's pattern, and in brackets before
/// the message if an appender's layout does not show it. May be called before InitializeLogger().
ZV_LOGGER_API void SetLogEventId(const char* eventId);
}

#endif
