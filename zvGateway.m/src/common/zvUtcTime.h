#ifndef ZV_UTC_TIME_H
#define ZV_UTC_TIME_H

#include <cstdint>
#include <optional>
#include <string>

/// Instants as the records of events have them, as in "2026-11-25T10:15:00.123Z".
namespace zvUtcTime {

/// The present instant.
std::string now();
/// Seconds since 1970; without a value for a text that begins with no instant of that form.
std::optional<std::int64_t> toSeconds(const std::string& text);
/// The present instant in seconds since 1970.
std::int64_t nowInSeconds();

}  // namespace zvUtcTime

#endif
