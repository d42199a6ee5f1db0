#include "zvTransferProgress.h"

#include <gtest/gtest.h>

#include "zvConsole.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using Meter = zvProgressMeter;

const Meter::Clock::time_point start{std::chrono::hours(1)};

TEST(zvProgressMeterTest, ThePaceIsThatOfTheLastSeconds) {
    Meter meter(500, start);  // had arrived before, and says nothing of the pace
    EXPECT_EQ(meter.percent(2000) + meter.timeLeft(2000), "25 %ETA ?");
    for (int second = 1; second <= 10; ++second) {
        meter.reach(500 + 100 * second, start + seconds(second));
    }
    EXPECT_EQ(meter.perSecond(), 100);
    EXPECT_EQ(meter.percent(2000) + meter.timeLeft(2000), "75 %ETA 0:05");
    for (int second = 11; second <= 21; ++second) {
        meter.reach(1500 + 10 * (second - 10), start + seconds(second));
    }
    EXPECT_EQ(meter.perSecond(), 10);
    EXPECT_EQ(meter.timeLeft(2000), "ETA 0:39");
    meter.reach(1000, start + seconds(22));
    EXPECT_EQ(meter.timeLeft(2000), "ETA ?") << "it is sent again from there";
    meter.reach(1001, start + seconds(23));
    EXPECT_EQ(meter.timeLeft(2000), "ETA 16:39");
    EXPECT_EQ(meter.timeLeft(8261), "ETA 2:01:00");
    EXPECT_EQ(meter.timeLeft(1e9), "ETA ?");
    EXPECT_EQ(meter.percent(1000) + meter.timeLeft(1000), "100 %ETA 0:00") << "the file grew";
    EXPECT_EQ(meter.percent(0), "100 %");
}

TEST(zvTransferProgressTest, WithoutATerminalThereIsALineEveryTenSeconds) {
    zvTransferProgress progress;
    const auto printed = [&progress](int from, int to, zvInt64 total) {
        testing::internal::CaptureStdout();
        for (int tick = from; tick <= to; ++tick) {
            progress.update(u"a\u0007b/big.step", 1'000'000 * static_cast<zvInt64>(tick), total,
                            start + milliseconds(250 * tick));
        }
        return testing::internal::GetCapturedStdout();
    };
    progress.begin(start);
    EXPECT_EQ(printed(1, 39, 120'000'000), "");
    EXPECT_EQ(printed(40, 79, 120'000'000),
              "  progress               a?b/big.step, 33 %, 4.0 MB/s, ETA 0:20\n");
    EXPECT_EQ(printed(80, 110, -1), "  progress               a?b/big.step, 80.0 MB, 4.0 MB/s\n");
    progress.begin(start + seconds(28));
    EXPECT_EQ(printed(112, 151, 999'000'000), "") << "each file has its own ten seconds";
    zvConsole::leaveOutProgress();
    EXPECT_EQ(printed(152, 300, 999'000'000), "");
}

TEST(zvConsoleTest, ANameIsShortenedToColumns) {
    EXPECT_EQ(zvConsole::shortened("4711-A.step", 11), "4711-A.step");
    EXPECT_EQ(zvConsole::shortened("4711-A.step", 10), "...-A.step");
    EXPECT_EQ(zvConsole::shortened(u"\u4E2D\u6587.step", 9), u"\u4E2D\u6587.step");
    EXPECT_EQ(zvConsole::shortened(u"\u4E2D\u6587\u4E2D.step", 10), u"...\u4E2D.step") << "wide ones";
    EXPECT_EQ(zvConsole::shortened(u"xx\U0001F600.step", 10), "....step") << "no half of a pair";
}

}  // namespace
