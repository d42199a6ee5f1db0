#ifndef ZV_LOGGER_LIBRARY_H
#define ZV_LOGGER_LIBRARY_H

#include "zvExport.h"

/// The interface of the logging library. A site may put a library of its own in the place of the default one:
/// these seven functions are all that is called of it.
///
/// Texts are 0-terminated, in the multibyte encoding of the process's locale, and need not outlive the call.
/// The functions may be called from any thread and at any time, the destruction of static objects at process
/// exit included; without a usable configuration, or with a null logger name or message, nothing is written.
/// No failure comes back to the caller: what cannot be written is told once on standard error.
extern "C" {

/// Configures the logging system from the log4cxx configuration file at `configurationPath`, in which "\" and
/// "/" both separate folders. Calling it again with the same path changes nothing; another path takes its
/// place.
/// @return true when messages can be written; false when the file is missing, is no usable configuration or
/// names nothing that can be written to. What is wrong with a file goes to standard error; a missing one is
/// no fault. What was configured before stays.
ZV_LOGGER_API bool InitializeLogger(const char* configurationPath);

/// Each writes one event of its level under the logger `loggerName`, with `file` and `line` as its location;
/// a null `file` is an unknown one.
ZV_LOGGER_API void LogDebugMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogInfoMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogWarnMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogErrorMessage(const char* loggerName, const char* message, const char* file, int line);
ZV_LOGGER_API void LogFatalMessage(const char* loggerName, const char* message, const char* file, int line);
/// Writes whatever the thresholds of logger and appender are.
ZV_LOGGER_API void LogAlwaysMessage(const char* loggerName, const char* message, const char* file, int line);
}

#endif
