#ifndef ZV_HOME_CHECK_KIND_H
#define ZV_HOME_CHECK_KIND_H

#include <string_view>

/// What `zvgateway check --home` finds beside the kinds of a configuration.
namespace zvHomeCheckKind {

// Of the home and its files.
constexpr std::string_view missing = "missing";        ///< a home, a folder or a file that is not there
constexpr std::string_view unreadable = "unreadable";  ///< a file that cannot be read
constexpr std::string_view unknownFile = "unknown-file";
// Of the keys in them.
constexpr std::string_view unknownKey = "unknown-key";
constexpr std::string_view repeatedKey = "repeated-key";
constexpr std::string_view missingKey = "missing-key";
constexpr std::string_view invalidLine = "invalid-line";
constexpr std::string_view invalidValue = "invalid-value";
constexpr std::string_view relativePath = "relative-path";
// Of what the home names.
constexpr std::string_view refusedLog = "refused-log";  ///< the logging library refuses its configuration
constexpr std::string_view unwritableLog = "unwritable-log";
constexpr std::string_view missingJava = "missing-java";
constexpr std::string_view missingClass = "missing-class";  ///< of the Java client
constexpr std::string_view fileServer = "file-server";      ///< no login, or no right to write
constexpr std::string_view httpServer = "http-server";      ///< no connection

}  // namespace zvHomeCheckKind

#endif
