#ifndef ZV_LOG_SOURCE_H
#define ZV_LOG_SOURCE_H

#include <new>
#include <type_traits>

#include "zvException.h"
#include "zvLogLevel.h"
#include "zvTextBuilder.h"

/// Decouples all layers from the logger, which depends on this layer itself: declared here, implemented next
/// to the logger.
namespace zvLogSink {

/// Whether a message would be written: by a configured logger, which is created on first use.
bool isReady();
void write(zvLogLevel level, const zvString& message, const char* file, int line);

}  // namespace zvLogSink

/// The first piece of a message, together with the line number of the logging call.
struct zvLogHead {
    zvLogHead(const char* head, int callLine = __builtin_LINE()) : text(head), line(callLine) {}

    const char* text;
    int line;
};

/// The logger of one source file: it is constructed with the file's name and then logs messages in pieces,
/// `logger.error("Error in opening file : \"", path, "\"")`. The pieces, each a zvString, a narrow string or
/// an int, are concatenated only if the message will be read; a piece may also be a function that returns
/// one, and is called only then.
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

    /// Logs an error and throws a zvException with the same message in its result.
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
        if (!zvLogSink::isReady()) {
            return;
        }
        try {
            zvLogSink::write(level, zvTextBuilder::concat(head.text, textOf(rest)...), m_pFile, head.line);
        } catch (const std::bad_alloc&) {
            // Logging never fails towards the caller: without memory the message is lost.
        }
    }

    template <typename Piece>
    static decltype(auto) textOf(const Piece& piece) {
        if constexpr (std::is_invocable_v<const Piece&>) {
            return piece();
        } else {
            return (piece);
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
