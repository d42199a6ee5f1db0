#ifndef ZV_RECORDING_LOGGER_H
#define ZV_RECORDING_LOGGER_H

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "zvExport.h"

/// A logging library for the tests: it has the same seven functions as the real one and remembers the calls.
namespace zvRecordingLogger {

struct Event {
    std::string level;  // "debug", "info", "warn", "error", "fatal" or "always"
    std::string loggerName;
    std::string message;  // as it arrived: with "file name[line] " in front
    std::string file;
    int line;
};

/// The events since the last reset().
ZV_LOGGER_API const std::vector<Event>& events();

/// The events' texts without "file name[line] ", each behind its level, as in "error: Empty file path."
ZV_LOGGER_API std::vector<std::string> lines();
/// The same for one level only, without the level.
ZV_LOGGER_API std::vector<std::string> lines(const std::string& level);

/// The paths with which the library was configured since the last reset().
ZV_LOGGER_API const std::vector<std::string>& configurations();

/// Forgets everything, and answers configurations with true from now on.
ZV_LOGGER_API void reset();
/// What InitializeLogger does from now on: it is handed the path and answers the result.
ZV_LOGGER_API void onInitialize(std::function<bool(const std::string&)> action);

}  // namespace zvRecordingLogger

#endif
