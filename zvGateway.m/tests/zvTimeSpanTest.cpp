#include "zvTimeSpan.h"

#include <gtest/gtest.h>

#include "zvPlatform.h"
#include "zvUtcTime.h"

namespace {

TEST(zvTimeSpanTest, SpansAreANumberAndAUnit) {
    const std::pair<const char*, std::int64_t> spans[] = {{"0s", 0},      {"90s", 90},      {"15m", 900},
                                                          {"12h", 43200}, {"30d", 2592000}, {"2w", 1209600}};
    for (const auto& [text, seconds] : spans) {
        EXPECT_EQ(zvTimeSpan::parse(text), seconds) << text;
    }
    for (const char* const text : {"", "5", "h", "-1h", "1.5h", "1h ", " 1h", "1hh", "1x", "99999999999d"}) {
        EXPECT_EQ(zvTimeSpan::parse(text), std::nullopt) << text;
    }
}

TEST(zvTimeSpanTest, InstantsAreSpansBeforeNowOrLocalDates) {
    zvPlatform::setEnvironment("TZ", "UTC-2");  // two hours east
    constexpr std::int64_t now = 1'795'615'200;
    EXPECT_EQ(zvTimeSpan::parseInstant("1h", now), now - 3600);
    EXPECT_EQ(zvTimeSpan::parseInstant("2026-11-25", now), zvUtcTime::toSeconds("2026-11-24T22:00:00"));
    EXPECT_EQ(zvTimeSpan::parseInstant("2026-11-25T18:30", now), zvUtcTime::toSeconds("2026-11-25T16:30:00"));
    for (const char* const text :
         {"", "yesterday", "2026-11", "2026-11-25T18", "2026-11-25 18:30", "2026-11-25x"}) {
        EXPECT_EQ(zvTimeSpan::parseInstant(text, now), std::nullopt) << text;
    }
}

TEST(zvTimeSpanTest, AreWrittenInTheLargestUnit) {
    const std::pair<std::int64_t, const char*> texts[] = {
        {0, "0s"}, {59, "59s"}, {60, "1m"}, {3599, "59m"}, {7200, "2h"}, {86399, "23h"}, {86400 * 21, "21d"}};
    for (const auto& [seconds, text] : texts) {
        EXPECT_EQ(zvTimeSpan::text(seconds), text);
    }
}

TEST(zvUtcTimeTest, ReadsWhatItWrites) {
    EXPECT_EQ(zvUtcTime::toSeconds("1970-01-01T00:00:01.999Z"), 1);
    EXPECT_EQ(zvUtcTime::toSeconds("2040-02-29T23:59:59Z"), 2'214'172'799);
    EXPECT_NEAR(static_cast<double>(zvUtcTime::toSeconds(zvUtcTime::now()).value_or(0)),
                static_cast<double>(zvUtcTime::nowInSeconds()), 2);
    for (const char* const text : {"", "now", "2026-11-25"}) {
        EXPECT_EQ(zvUtcTime::toSeconds(text), std::nullopt) << text;
    }
}

}  // namespace
