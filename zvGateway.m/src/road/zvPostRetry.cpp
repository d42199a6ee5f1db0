#include "zvPostRetry.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

using Failure = zvRequestOutcome::Failure;

constexpr int firstRedirect = 300;
constexpr double longestDelay = 60;  // seconds

// Of a server that is busy, starts or stops, or of a proxy before one.
constexpr int temporaryStatuses[] = {408, 425, 429, 500, 502, 503, 504};
constexpr Failure temporaryFailures[] = {Failure::resolve, Failure::connect, Failure::timeout,
                                         Failure::connection, Failure::answerLimit};

template <typename Values, typename Value>
bool contains(const Values& values, Value value) {
    return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

// A status that came with an incomplete response decides all the same.
bool isTemporary(const zvRequestOutcome& outcome) {
    return outcome.status >= firstRedirect ? contains(temporaryStatuses, outcome.status)
                                           : contains(temporaryFailures, outcome.failure);
}

}  // namespace

zvPostRetry zvPostRetry::read(zvClientSettings& settings) {
    zvPostRetry retry;
    retry.retries = static_cast<int>(settings.number("http-retries", retry.retries));
    retry.delay = settings.number("http-retry-delay", retry.delay);
    return retry;
}

zvPostRetry::Decision zvPostRetry::decide(const zvRequestOutcome& outcome, int attempt) const {
    if (!isTemporary(outcome)) {
        return Decision::permanent;
    }
    if (attempt > retries) {
        return Decision::exhausted;
    }
    return outcome.retryAfterSeconds > longestRetryAfter.count() ? Decision::tooLong : Decision::again;
}

std::chrono::milliseconds zvPostRetry::wait(const zvRequestOutcome& outcome, int attempt,
                                            double random) const {
    const double backOff = std::min(std::ldexp(delay, attempt - 1), longestDelay) * (1 - random / 2);
    const std::chrono::duration<double> seconds(
        std::max(backOff, static_cast<double>(outcome.retryAfterSeconds)));
    return std::chrono::round<std::chrono::milliseconds>(seconds);
}
