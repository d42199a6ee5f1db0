#include "zvUtcTime.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>

#include "zvProcess.h"

namespace {

using std::chrono::system_clock;

}  // namespace

std::string zvUtcTime::now() {
    const auto time = system_clock::now();
    const std::time_t seconds = system_clock::to_time_t(time);
    const auto sinceEpoch = std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch());
    constexpr int perSecond = 1000;
    constexpr std::size_t width = 40;
    std::array<char, width> date{};
    std::strftime(date.data(), date.size(), "%Y-%m-%dT%H:%M:%S", std::gmtime(&seconds));
    std::array<char, 2 * width> text{};
    std::snprintf(text.data(), text.size(), "%s.%03dZ", date.data(),
                  static_cast<int>(sinceEpoch.count() % perSecond));
    return text.data();
}

std::optional<std::int64_t> zvUtcTime::toSeconds(const std::string& text) {
    std::tm time{};
    constexpr int fields = 6;
    if (std::sscanf(text.c_str(), "%4d-%2d-%2dT%2d:%2d:%2d", &time.tm_year, &time.tm_mon, &time.tm_mday,
                    &time.tm_hour, &time.tm_min, &time.tm_sec) != fields) {
        return std::nullopt;
    }
    constexpr int firstYear = 1900;
    time.tm_year -= firstYear;
    time.tm_mon -= 1;
    return zvProcess::toSeconds(time);
}

std::int64_t zvUtcTime::nowInSeconds() { return system_clock::to_time_t(system_clock::now()); }
