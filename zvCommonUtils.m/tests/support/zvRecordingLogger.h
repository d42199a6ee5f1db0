#ifndef ZV_RECORDING_LOGGER_H
#define ZV_RECORDING_LOGGER_H

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "zvExport.h"

/// A logging library for the tests that records the calls of its seven functions.
namespace zvRecordingLogger {

struct Event {
    std::string level;  // "debug", "info", "warn", "error", "fatal" or "always"
    std::string loggerName;
    std::string message;  // as received, with the prefix "file name[line] "
    std::string file;
    int line;
};

/// The events since the last reset().
ZV_LOGGER_API const std::vector<Event>& events();

/// The messages without the prefix "file name[line] ", each after its level: "error: Empty file path."
ZV_LOGGER_API std::vector<std::string> lines();
/// The same for one level, without the level.
ZV_LOGGER_API std::vector<std::string> lines(const std::string& level);

/// The paths passed to InitializeLogger since the last reset().
ZV_LOGGER_API const std::vector<std::string>& configurations();

/// Discards everything recorded; InitializeLogger returns true from now on.
ZV_LOGGER_API void reset();
/// Replaces InitializeLogger: `action` receives the path and returns the result.
ZV_LOGGER_API void onInitialize(std::function<bool(const std::string&)> action);

}  // namespace zvRecordingLogger

#endif
