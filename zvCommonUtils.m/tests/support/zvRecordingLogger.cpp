#include "zvRecordingLogger.h"

#include <mutex>
#include <utility>

#include "zvLoggerLibrary.h"

namespace zvRecordingLogger {
namespace {

struct Record {
    std::vector<Event> events;
    std::vector<std::string> configurations;
    std::function<bool(const std::string&)> initialize;
};

// Never destroyed: static destructors may log.
Record& record() {
    static auto* const instance = new Record;
    return *instance;
}

void add(const char* level, const char* loggerName, const char* message, const char* file, int line) {
    static std::mutex mutex;
    const std::lock_guard<std::mutex> guard(mutex);
    record().events.push_back({level, loggerName, message, file == nullptr ? "" : file, line});
}

std::string withoutLocation(const Event& event) {
    const std::string location = "[" + std::to_string(event.line) + "] ";
    const std::size_t at = event.message.find(location);
    return at == std::string::npos ? event.message : event.message.substr(at + location.size());
}

}  // namespace

const std::vector<Event>& events() { return record().events; }

std::vector<std::string> lines() {
    std::vector<std::string> texts;
    for (const Event& event : events()) {
        texts.push_back(event.level + ": " + withoutLocation(event));
    }
    return texts;
}

std::vector<std::string> lines(const std::string& level) {
    std::vector<std::string> texts;
    for (const Event& event : events()) {
        if (event.level == level) {
            texts.push_back(withoutLocation(event));
        }
    }
    return texts;
}

const std::vector<std::string>& configurations() { return record().configurations; }

void reset() { record() = {}; }

void onInitialize(std::function<bool(const std::string&)> action) { record().initialize = std::move(action); }

}  // namespace zvRecordingLogger

using zvRecordingLogger::add;
using zvRecordingLogger::record;

bool InitializeLogger(const char* configurationPath) {
    record().configurations.emplace_back(configurationPath);
    return !record().initialize || record().initialize(configurationPath);
}

void LogDebugMessage(const char* loggerName, const char* message, const char* file, int line) {
    add("debug", loggerName, message, file, line);
}

void LogInfoMessage(const char* loggerName, const char* message, const char* file, int line) {
    add("info", loggerName, message, file, line);
}

void LogWarnMessage(const char* loggerName, const char* message, const char* file, int line) {
    add("warn", loggerName, message, file, line);
}

void LogErrorMessage(const char* loggerName, const char* message, const char* file, int line) {
    add("error", loggerName, message, file, line);
}

void LogFatalMessage(const char* loggerName, const char* message, const char* file, int line) {
    add("fatal", loggerName, message, file, line);
}

void LogAlwaysMessage(const char* loggerName, const char* message, const char* file, int line) {
    add("always", loggerName, message, file, line);
}
