#ifndef ZV_POST_RETRY_H
#define ZV_POST_RETRY_H

#include <chrono>
#include "zvClientSettings.h"
#include "zvRequestOutcome.h"

/// When a post that was not delivered is tried again: the site's settings, and the decision.
struct zvPostRetry {
    /// A longer "Retry-After" is not waited for.
    static constexpr std::chrono::seconds longestRetryAfter{600};

    /// Reads the keys "http-retries" and "http-retry-delay".
    static zvPostRetry read(zvClientSettings& settings);

    /// How often at most.
    int retries = 5;
    /// The back-off before the first retry, in seconds. It doubles with each, up to 60 s.
    double delay = 1;

    enum class Decision {
        again,      ///< the next attempt is to follow
        permanent,  ///< no other attempt would fare better
        exhausted,  ///< the attempts are used up
        tooLong     ///< the server asks for a longer wait than longestRetryAfter
    };
    /// What follows the failure of the `attempt`-th attempt, which counts from 1.
    Decision decide(const zvRequestOutcome& outcome, int attempt) const;
    /// The time until the next attempt: the back-off, of which `random`, from 0 to 1, takes away up to a
    /// half, so that events which failed together do not come back together; or the server's "Retry-After",
    /// if that is longer.
    std::chrono::milliseconds wait(const zvRequestOutcome& outcome, int attempt, double random) const;
};

#endif
