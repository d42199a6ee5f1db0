#include "zvDateTime.h"

#include <ctime>

#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

namespace {

constexpr char pattern[] = "DD/MM/YYYY::hh-mm-ss";

class zvDateTimeTest : public zvLoggedTest {
protected:
    // Sets the time zone of the test's local times.
    static void setZone(const char* zone) {
        zvPlatform::setEnvironment("TZ", zone);
        ::tzset();
    }

    zvDateTimeTest() { setZone("UTC"); }
};

std::string fields(const zvDateTime& date) {
    return std::to_string(date.getYear()) + ' ' + std::to_string(date.getMonth()) + ' ' +
           std::to_string(date.getDay()) + ' ' + std::to_string(date.getHour()) + ' ' +
           std::to_string(date.getMinute()) + ' ' + std::to_string(date.getSecond());
}

TEST_F(zvDateTimeTest, ReadsByAPattern) {
    struct Case {
        const char *value, *format, *expected;
    };
    const Case cases[] = {
        {"21/05/2011::11-12-22", pattern, "2011 5 21 11 12 22"},
        {"21-05-2011", "DD-MM-YYYY", "2011 5 21 9 9 9"},
        {"2011/5/1", "YYYY-MM-DD", "2011 5 1 9 9 9"},
        {"11:12:22", "hh-mm-ss", "9 9 9 11 2 2"},  // a ":" skips the character after it
        {"21/05", pattern, "9 5 21 9 9 9"},
        {"21/05/20115-11", pattern, "2011 5 21 0 11 9"},  // the fifth digit is dropped like a separator
        {"21/05/20115", pattern, "20115 5 21 9 9 9"},     // but not at the end
        {"x/y/z", pattern, "0 0 0 9 9 9"},
        {"::::", pattern, "9 0 0 9 9 9"},
        {"1/99999/3", pattern, "0 9999 1 3 9 9"},
        {"7/8", "x D.. /M", "9 8 7 9 9 9"},
    };
    for (const Case& c : cases) {
        zvDateTime date(9, 9, 9, 9, 9, 9);
        date.setDate(c.value, c.format);
        EXPECT_EQ(fields(date), c.expected) << c.value;
        EXPECT_EQ(date.getDateFormat(), c.format);
    }
    EXPECT_TRUE(zvRecordingLogger::lines().empty());
}

TEST_F(zvDateTimeTest, EmptyInputIsLogged) {
    zvDateTime date(2011, 5, 21, 0, 0, 0);
    date.setDate("", "DD");
    date.setDate("1", "");
    const std::vector<std::string> expected = {
        "error: Date cannot be extracted from the input string. The input string is \"\" and the format is "
        "\"DD\"",
        "error: Date cannot be extracted from the input string. The input string is \"1\" and the format is "
        "\"\""};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
    EXPECT_EQ(date.getDateFormat(), pattern);
    EXPECT_EQ(date.getDay(), 21);
}

TEST_F(zvDateTimeTest, ThePatternIsCopiedWithTheValue) {
    for (const char* const format : {"", "DD", pattern}) {
        const zvDateTime date{zvString(format)};
        zvDateTime assigned(2011, 5, 21, 0, 0, 0);
        assigned = zvDateTime(date);
        EXPECT_EQ(assigned.getDateFormat(), format);
        assigned = zvDateTime();
        EXPECT_EQ(assigned.getDateFormat(), pattern);
    }
}

TEST_F(zvDateTimeTest, WritesByAPattern) {
    const zvDateTime date(2011, 5, 21, 1, 2, 3);
    struct Case {
        const char *format, *expected;
    };
    const Case cases[] = {{pattern, "21/5/2011::1-2-3"},
                          {"DD/MM/YYYY", "21/5/2011"},
                          {"hh-mm-ss", "1-2-3"},
                          {"YYYY-MM", ""},
                          {"YYYYDD", "2011/21/0"},
                          {"DDhh", "21/1/0::0-0-0"},
                          {"MM/MM/MM/MM/MM/MM/DD", "5/5/5"},  // a seventh field still tells the part
                          {"DD/MM/YYYY::mm-ss-ss-hh", "21/5/2011::2-3-3"},
                          {"MM/MM/MM/MM/MM/MM/MM", ""},
                          {"", ""}};
    for (const Case& c : cases) {
        EXPECT_EQ(date.getDateTime(c.format, "/", "-"), c.expected) << c.format;
    }
    EXPECT_EQ(date.getDate("DD/MM/YYYY", "."), "21.5.2011");
    EXPECT_EQ(date.getTime("hh-mm-ss", ":"), "1:2:3");
    EXPECT_EQ(date.toString(), "Day: |21/5/2011| Time: |1-2-3|");
    EXPECT_EQ(zvDateTime().toString(), "zvDateTime object not initialized");
}

TEST_F(zvDateTimeTest, ComparesInstants) {
    EXPECT_TRUE(zvDateTime(2011, 4, 31, 0, 0, 0) == zvDateTime(2011, 5, 1, 0, 0, 0));
    EXPECT_TRUE(zvDateTime() == zvDateTime(1969, 1, 1, 0, 0, 0)) << "both before 1970";
    const zvDateTime early(2011, 5, 1, 0, 0, 0);
    const zvDateTime late(2011, 5, 1, 0, 0, 1);
    EXPECT_TRUE(early < late && early <= late && late > early && late >= early && early != late);
    EXPECT_TRUE(early <= early && early >= early && !(early < early) && !(early > early));
}

TEST_F(zvDateTimeTest, ConvertsSecondsFrom1970To3000) {
    EXPECT_EQ(zvDateTime(1970, 1, 1, 0, 0, 0).getDateTimeInSeconds(), 0);
    EXPECT_EQ(zvDateTime(1969, 12, 31, 23, 59, 59).getDateTimeInSeconds(), -1);
    EXPECT_EQ(zvDateTime(3000, 12, 31, 23, 59, 59).getDateTimeInSeconds(), 32535215999);
    EXPECT_EQ(zvDateTime(3001, 1, 1, 0, 0, 0).getDateTimeInSeconds(), -1);
    zvDateTime date(1, 2, 3, 4, 5, 6);
    date.setDateTimeInSeconds(-1);
    date.setDateTimeInSeconds(32535216000);
    EXPECT_EQ(fields(date), "1 2 3 4 5 6");
    date.setDateTimeInSeconds(32535215999);
    EXPECT_EQ(fields(date), "3000 12 31 23 59 59");
    date.setCurrentDateTime();
    EXPECT_NEAR(static_cast<double>(date.getDateTimeInSeconds()), static_cast<double>(std::time(nullptr)),
                5.0);
}

// POSIX time zones, so that no time zone database is needed.
TEST_F(zvDateTimeTest, RoundTripsThroughZonesOfBothHemispheres) {
    struct Case {
        const char* zone;
        zvInt64 winter, summer;  // seconds of 2011-01-15 and 2011-07-15, noon each
    };
    const Case cases[] = {{"CET-1CEST,M3.5.0,M10.5.0/3", 1295089200, 1310724000},
                          {"AEST-10AEDT,M10.1.0,M4.1.0/3", 1295053200, 1310695200},
                          {"UTC", 1295092800, 1310731200}};
    if (onWindows) {
        GTEST_SKIP() << "a runtime to which the rules of a zone can be told";
    }
    for (const Case& c : cases) {
        setZone(c.zone);
        EXPECT_EQ(zvDateTime(2011, 1, 15, 12, 0, 0).getDateTimeInSeconds(), c.winter) << c.zone;
        EXPECT_EQ(zvDateTime(2011, 7, 15, 12, 0, 0).getDateTimeInSeconds(), c.summer) << c.zone;
        for (zvInt64 seconds = 1293000000; seconds < 1325000000; seconds += 86399) {
            const zvDateTime date(seconds);
            const zvInt64 back = date.getDateTimeInSeconds();
            // When clocks are set back, the repeated hour is ambiguous.
            EXPECT_TRUE(back == seconds || back == seconds + 3600 || back == seconds - 3600) << c.zone;
            zvDateTime read;
            read.setDate(date.getDateTime(pattern, "/", "-"), pattern);
            EXPECT_EQ(fields(read), fields(date));
        }
    }
    setZone("UTC");
}

}  // namespace
