#ifndef ZV_TIME_SPAN_H
#define ZV_TIME_SPAN_H

#include <cstdint>
#include <optional>
#include <string>

/// Times as people write and read them on a command line.
namespace zvTimeSpan {

/// The seconds of a text like "90s", "15m", "12h", "30d" or "2w"; without a value for another text.
std::optional<std::int64_t> parse(const std::string& text);
/// The instant, in seconds since 1970, that a text means: a span, which ends `now`, or a local date, as in
/// "2026-11-25", or date and time, as in "2026-11-25T18:00". Without a value for another text.
std::optional<std::int64_t> parseInstant(const std::string& text, std::int64_t now);
/// As in "40s", "12m", "7h" and "30d": the largest unit of which there is at least one, rounded down.
std::string text(std::int64_t seconds);

}  // namespace zvTimeSpan

#endif
