#include "zvTimeSpan.h"

#include <charconv>
#include <cstdio>
#include <ctime>

namespace {

struct Unit {
    char name;
    std::int64_t seconds;
};
constexpr Unit units[] = {{'s', 1}, {'m', 60}, {'h', 3600}, {'d', 86400}, {'w', 604800}};
constexpr std::int64_t longest = 100'000'000;  // of units; some centuries of minutes

}  // namespace

std::optional<std::int64_t> zvTimeSpan::parse(const std::string& text) {
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || number < 0 || number > longest || rest + 1 != end) {
        return std::nullopt;
    }
    for (const Unit& unit : units) {
        if (unit.name == *rest) {
            return number * unit.seconds;
        }
    }
    return std::nullopt;
}

std::optional<std::int64_t> zvTimeSpan::parseInstant(const std::string& text, std::int64_t now) {
    if (const std::optional<std::int64_t> span = parse(text)) {
        return now - *span;
    }
    std::tm time{};
    int length = 0;
    char separator = 'T';
    constexpr int ofDate = 3;
    constexpr int ofTime = 6;
    const int fields = std::sscanf(text.c_str(), "%4d-%2d-%2d%n%c%2d:%2d%n", &time.tm_year, &time.tm_mon,
                                   &time.tm_mday, &length, &separator, &time.tm_hour, &time.tm_min, &length);
    const bool isWhole = (fields == ofDate || (fields == ofTime && separator == 'T')) &&
                         static_cast<std::size_t>(length) == text.size();
    if (!isWhole) {
        return std::nullopt;
    }
    constexpr int firstYear = 1900;
    time.tm_year -= firstYear;
    time.tm_mon -= 1;
    time.tm_isdst = -1;
    return std::mktime(&time);
}

std::string zvTimeSpan::text(std::int64_t seconds) {
    const Unit* best = units;
    for (const Unit& unit : units) {
        if (unit.name != 'w' && seconds >= unit.seconds) {
            best = &unit;
        }
    }
    return std::to_string(seconds / best->seconds) + best->name;
}
