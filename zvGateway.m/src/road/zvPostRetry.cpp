#include "zvPostRetry.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string_view>
#include <system_error>

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvProperties.h"

namespace {

using Failure = zvRequestOutcome::Failure;

constexpr int firstRedirect = 300;
constexpr double longestDelay = 60;  // seconds

// Of a server that is busy, starts or stops, or of a proxy before one.
constexpr int temporaryStatuses[] = {408, 425, 429, 500, 502, 503, 504};
constexpr Failure temporaryFailures[] = {Failure::resolve, Failure::connect, Failure::timeout,
                                         Failure::connection};

template <typename Values, typename Value>
bool contains(const Values& values, Value value) {
    return std::find(std::begin(values), std::end(values), value) != std::end(values);
}

// A status that came with an incomplete response decides all the same.
bool isTemporary(const zvRequestOutcome& outcome) {
    return outcome.status >= firstRedirect ? contains(temporaryStatuses, outcome.status)
                                           : contains(temporaryFailures, outcome.failure);
}

// Overwrites `number` if the property is set and a number from 0 to `largest`.
void readNumber(const zvProperties& properties, const char* key, double largest, bool isWhole, double& number,
                std::vector<std::string>& faults) {
    zvString value = properties.getPropertyValue(key);
    if (value.empty()) {
        return;
    }
    value.trim();
    const zvCharString text(value);
    const std::string_view digits = text.data();
    double read = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), read);
    const bool isNumber = error == std::errc() && end == digits.data() + digits.size();
    if (isNumber && read >= 0 && read <= largest && (!isWhole || read == std::floor(read))) {
        number = read;
    } else {
        faults.push_back("\"" + std::string(text.data()) + "\" is no " + (isWhole ? "whole " : "") +
                         "number from 0 to " + std::to_string(static_cast<int>(largest)) + ": \"" + key +
                         "\" of client-config.ini is left at its default");
    }
}

}  // namespace

zvPostRetry zvPostRetry::read(std::vector<std::string>& faults) {
    constexpr double mostRetries = 1000;
    zvPostRetry retry;
    zvProperties properties;
    if (properties.parse(zvCommonUtils::getConfigurationFile("client-config.ini")).isOk()) {
        double retries = retry.retries;
        readNumber(properties, "http-retries", mostRetries, true, retries, faults);
        retry.retries = static_cast<int>(retries);
        readNumber(properties, "http-retry-delay", longestDelay, false, retry.delay, faults);
    }
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
