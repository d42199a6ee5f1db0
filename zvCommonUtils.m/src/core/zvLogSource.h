#ifndef ZV_LOG_SOURCE_H
#define ZV_LOG_SOURCE_H

#include "zvException.h"
#include "zvLogLevel.h"
#include "zvTextBuilder.h"

/// The way from every layer to the logger, which itself stands on this layer: implemented beside the logger.
namespace zvLogSink {

/// Whether somebody reads what is logged: a logger, created on first use, that can write.
bool isReady();
void write(zvLogLevel level, const zvString& message, const char* file, int line);

}  // namespace zvLogSink

/// The first piece of a message, with the line of the call that it stands in.
struct zvLogHead {
    zvLogHead(const char* head, int callLine = __builtin_LINE()) : text(head), line(callLine) {}

    const char* text;
    int line;
};

/// The one way of logging: a source file names itself once and then logs messages in pieces,
/// `logger.error("Error in opening file : \"", path, "\"")`. The pieces, each a zvString, a narrow text or an
/// int, are put together only when somebody will read the message.
class zvLogSource {
public:
    explicit constexpr zvLogSource(const char* file) : m_pFile(file) {}

    template <typename... Pieces>
    void debug(zvLogHead head, const Pieces&... rest) const {
        log(zvLogLevel::debug, head, rest...);
    }
    template <typename... Pieces>
    void info(zvLogHead head, const Pieces&... rest) const {
        log(zvLogLevel::info, head, rest...);
    }
    template <typename... Pieces>
    void warn(zvLogHead head, const Pieces&... rest) const {
        log(zvLogLevel::warn, head, rest...);
    }
    template <typename... Pieces>
    void error(zvLogHead head, const Pieces&... rest) const {
        log(zvLogLevel::error, head, rest...);
    }
    template <typename... Pieces>
    void fatal(zvLogHead head, const Pieces&... rest) const {
        log(zvLogLevel::fatal, head, rest...);
    }

    /// Logs an error and throws it as the message of a zvException's result.
    template <typename... Pieces>
    [[noreturn]] void raise(zvLogHead head, const Pieces&... rest) const {
        raiseAt(zvLogLevel::error, head, zvTextBuilder::concat(head.text, rest...));
    }
    template <typename... Pieces>
    [[noreturn]] void raiseFatal(zvLogHead head, const Pieces&... rest) const {
        raiseAt(zvLogLevel::fatal, head, zvTextBuilder::concat(head.text, rest...));
    }

private:
    template <typename... Pieces>
    void log(zvLogLevel level, const zvLogHead& head, const Pieces&... rest) const {
        if (zvLogSink::isReady()) {
            zvLogSink::write(level, zvTextBuilder::concat(head.text, rest...), m_pFile, head.line);
        }
    }

    [[noreturn]] void raiseAt(zvLogLevel level, const zvLogHead& head, const zvString& message) const {
        if (zvLogSink::isReady()) {
            zvLogSink::write(level, message, m_pFile, head.line);
        }
        zvResult result;
        result.setMessage(message);
        throw zvException(result);
    }

    const char* m_pFile;
};

#endif
