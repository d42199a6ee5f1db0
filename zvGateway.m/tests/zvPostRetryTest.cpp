#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "zvPostRetry.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

namespace {

using Decision = zvPostRetry::Decision;
using Failure = zvRequestOutcome::Failure;
using std::chrono::milliseconds;

zvRequestOutcome answered(int status, zvInt64 retryAfterSeconds = 0) {
    zvRequestOutcome outcome;
    outcome.status = status;
    outcome.retryAfterSeconds = retryAfterSeconds;
    return outcome;
}

zvRequestOutcome failed(Failure failure, int status = 0) {
    zvRequestOutcome outcome;
    outcome.status = status;
    outcome.failure = failure;
    return outcome;
}

TEST(zvPostRetryTest, OnlyWhatMayPassIsTriedAgain) {
    const zvPostRetry retry;
    const std::set<int> temporary = {408, 425, 429, 500, 502, 503, 504};
    for (int status = 300; status < 600; ++status) {
        EXPECT_EQ(retry.decide(answered(status), 1) == Decision::again, temporary.count(status) == 1)
            << status;
    }
    EXPECT_EQ(retry.decide(answered(101), 1), Decision::permanent);
    for (const Failure failure :
         {Failure::resolve, Failure::connect, Failure::timeout, Failure::connection}) {
        EXPECT_EQ(retry.decide(failed(failure), 1), Decision::again);
        EXPECT_EQ(retry.decide(failed(failure, 200), 1), Decision::again);
        EXPECT_EQ(retry.decide(failed(failure, 404), 1), Decision::permanent);
        EXPECT_EQ(retry.decide(failed(failure, 503), 1), Decision::again);
    }
    for (const Failure failure : {Failure::settings, Failure::tls, Failure::other}) {
        EXPECT_EQ(retry.decide(failed(failure), 1), Decision::permanent);
    }
}

TEST(zvPostRetryTest, TriesAndPatienceAreLimited) {
    zvPostRetry retry;
    retry.retries = 2;
    EXPECT_EQ(retry.decide(answered(503), 2), Decision::again);
    EXPECT_EQ(retry.decide(answered(503), 3), Decision::exhausted);
    EXPECT_EQ(retry.decide(answered(429, 600), 1), Decision::again);
    EXPECT_EQ(retry.decide(answered(429, 601), 1), Decision::tooLong);
    EXPECT_EQ(retry.decide(answered(404, 601), 1), Decision::permanent);
    retry.retries = 0;
    EXPECT_EQ(retry.decide(answered(503), 1), Decision::exhausted);
}

TEST(zvPostRetryTest, TheBackOffDoublesAndHasJitter) {
    const struct {
        double delay;
        int attempt;
        double random;
        int retryAfter;
        int milliseconds;
    } cases[] = {{1, 1, 0, 0, 1000},      {1, 1, 1, 0, 500},      {1, 2, 0, 0, 2000},  {1, 4, 0.5, 0, 6000},
                 {1, 7, 0, 0, 60000},     {1, 1000, 0, 0, 60000}, {1, 7, 1, 0, 30000}, {0.1, 1, 0, 0, 100},
                 {0.1, 3, 0.5, 0, 300},   {0, 50, 0, 0, 0},       {1, 1, 0, 3, 3000},  {1, 4, 0, 3, 8000},
                 {0, 1, 0.5, 600, 600000}};
    for (const auto& [delay, attempt, random, retryAfter, expected] : cases) {
        zvPostRetry retry;
        retry.delay = delay;
        EXPECT_EQ(retry.wait(answered(503, retryAfter), attempt, random), milliseconds(expected))
            << delay << " " << attempt << " " << random << " " << retryAfter;
    }
}

TEST(zvPostRetryTest, SettingsAreReadOrTold) {
    const struct {
        const char* lines;
        int retries;
        double delay;
        std::size_t faults;
    } cases[] = {{"a=b\n", 5, 1, 0},
                 {"http-retries=0\nhttp-retry-delay=0\n", 0, 0, 0},
                 {"http-retries=1000\r\nhttp-retry-delay=0.25\r\n", 1000, 0.25, 0},
                 {"http-retries=1001\nhttp-retry-delay=60.5\n", 5, 1, 2},
                 {"http-retries=1.5\nhttp-retry-delay=soon\n", 5, 1, 2},
                 {"http-retries=-1\nhttp-retry-delay=-0.1\n", 5, 1, 2},
                 {"http-retries=2x\nhttp-retry-delay=nan\n", 5, 1, 2},
                 {"http-retries= \nhttp-retry-delay=1e3\n", 5, 1, 2}};
    for (const auto& [lines, retries, delay, count] : cases) {
        zvClientSettings settings{zvClientConfigFile(lines)};
        const zvPostRetry retry = zvPostRetry::read(settings);
        EXPECT_EQ(retry.retries, retries) << lines;
        EXPECT_EQ(retry.delay, delay) << lines;
        EXPECT_EQ(settings.faults().size(), count) << lines;
    }
}

}  // namespace
