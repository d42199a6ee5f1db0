#include "zvLoggerLibrary.h"

#include <log4cxx/helpers/charsetdecoder.h>
#include <log4cxx/helpers/charsetencoder.h>
#include <log4cxx/helpers/loglog.h>
#include <log4cxx/helpers/onlyonceerrorhandler.h>
#include <log4cxx/hierarchy.h>
#include <log4cxx/level.h>
#include <log4cxx/pattern/formattinginfo.h>
#include <log4cxx/pattern/integerpatternconverter.h>
#include <log4cxx/pattern/literalpatternconverter.h>

#include <exception>
#include <filesystem>
#include <memory>
#include <mutex>
#include <new>

#include "zvLogConfiguration.h"
#include "zvLogPath.h"
#include "zvLogText.h"
#include "zvPlatform.h"

using log4cxx::Level;
using log4cxx::LevelPtr;
using log4cxx::helpers::LogLog;

namespace {

std::mutex mutex;
// Owned; null if there is nothing to write to. Trivially destructible, and so valid during process exit.
zvLogConfiguration* configuration = nullptr;
bool isExiting = false;
// Whether a call ran out of memory: log4cxx may then hold a logger that is half made, and is configured
// afresh.
bool isSuspect = false;

/// Keeps the parts of log4cxx that a line needs alive from the loading of this library to process exit.
///
/// log4cxx's static objects are destroyed at exit in the reverse order of their construction. Those
/// constructed here outlive the static objects of the program, whose destructors may log.
class Lifetime {
public:
    Lifetime() {
        LogLog::setQuietMode(false);
        log4cxx::helpers::CharsetDecoder::getDefaultDecoder();
        log4cxx::helpers::CharsetEncoder::getDefaultEncoder();
        log4cxx::Hierarchy::create()->getLogger(LOG4CXX_STR("zvLogger"));
        log4cxx::pattern::FormattingInfo::getDefault();
        log4cxx::pattern::IntegerPatternConverter::newInstance({});
        log4cxx::pattern::LiteralPatternConverter::newInstance(LOG4CXX_STR(" "));
        for (const auto level : {&Level::getOff, &Level::getFatal, &Level::getError, &Level::getWarn,
                                 &Level::getInfo, &Level::getDebug, &Level::getTrace, &Level::getAll}) {
            level();
        }
    }
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;
    ~Lifetime() {
        const std::lock_guard<std::mutex> guard(mutex);
        isExiting = true;
        delete configuration;
        configuration = nullptr;
    }

    /// Reports the first line that could not be written, and only that.
    void report(const std::exception& failure) {
        m_errorHandler.error(LOG4CXX_STR("A message could not be logged"), failure, 0);
    }

private:
    log4cxx::helpers::OnlyOnceErrorHandler m_errorHandler;
} lifetime;

/// Constructed after the first configuration, and so destroyed before the static objects that it created in
/// log4cxx: no configuration is possible after that.
struct ConfigurationPhase {
    ConfigurationPhase() = default;
    ConfigurationPhase(const ConfigurationPhase&) = delete;
    ConfigurationPhase& operator=(const ConfigurationPhase&) = delete;
    ~ConfigurationPhase() {
        const std::lock_guard<std::mutex> guard(mutex);
        isExiting = true;
    }
};

bool configure(const std::filesystem::path& path) {
    if (configuration != nullptr && configuration->path() == path && !isSuspect) {
        return true;
    }
    // A missing file is no error and not reported: the program runs without a log.
    if (isExiting || !std::filesystem::exists(path)) {
        return false;
    }
    auto fresh = std::make_unique<zvLogConfiguration>(path);
    static const ConfigurationPhase phase;
    if (!fresh->canWrite()) {
        return false;
    }
    delete configuration;
    configuration = fresh.release();
    isSuspect = false;
    return true;
}

/// Above every threshold, "off" included.
LevelPtr alwaysLevel() { return std::make_shared<Level>(Level::OFF_INT, LOG4CXX_STR("ALWAYS"), 0); }

void write(LevelPtr (*level)(), const char* loggerName, const char* message, const char* file, int line) {
    if (loggerName == nullptr || message == nullptr) {
        return;
    }
    const std::lock_guard<std::mutex> guard(mutex);
    if (configuration == nullptr) {
        return;
    }
    try {
        if (isSuspect) {
            configure(std::filesystem::path(configuration->path()));
        }
        configuration->write(level(), loggerName, message, file, line);
    } catch (const std::bad_alloc&) {
        // The message is lost, and a report of it would need more memory.
        isSuspect = true;
    } catch (const std::exception& failure) {
        lifetime.report(failure);
    }
}

}  // namespace

bool InitializeLogger(const char* configurationPath) {
    if (configurationPath == nullptr || *configurationPath == '\0') {
        return false;
    }
    const std::lock_guard<std::mutex> guard(mutex);
    // Twice: callers do not ask again, and a moment without memory must not leave them without a log.
    for (int attempt = 0; attempt < 2; ++attempt) {
        try {
            return configure(std::filesystem::weakly_canonical(
                zvLogPath::of(zvLogText::decoded(zvPlatform::nativePath(configurationPath)))));
        } catch (const std::bad_alloc&) {
            continue;
        } catch (const std::exception&) {
            return false;
        }
    }
    return false;
}

void LogDebugMessage(const char* loggerName, const char* message, const char* file, int line) {
    write(&Level::getDebug, loggerName, message, file, line);
}

void LogInfoMessage(const char* loggerName, const char* message, const char* file, int line) {
    write(&Level::getInfo, loggerName, message, file, line);
}

void LogWarnMessage(const char* loggerName, const char* message, const char* file, int line) {
    write(&Level::getWarn, loggerName, message, file, line);
}

void LogErrorMessage(const char* loggerName, const char* message, const char* file, int line) {
    write(&Level::getError, loggerName, message, file, line);
}

void LogFatalMessage(const char* loggerName, const char* message, const char* file, int line) {
    write(&Level::getFatal, loggerName, message, file, line);
}

void LogAlwaysMessage(const char* loggerName, const char* message, const char* file, int line) {
    write(&alwaysLevel, loggerName, message, file, line);
}

void SetLogEventId(const char* eventId) {
    try {
        zvLogConfiguration::setEventId(eventId == nullptr ? "" : eventId);
    } catch (const std::exception&) {
        // Without memory the lines go without it.
        return;
    }
}
