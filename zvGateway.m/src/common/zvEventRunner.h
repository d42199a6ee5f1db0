#ifndef ZV_EVENT_RUNNER_H
#define ZV_EVENT_RUNNER_H

#include <set>
#include <string>
#include <vector>

#include "zvEventOutcome.h"
#include "zvString.h"

/// Takes events along the road, one after the other in one process. What they share is made once: the Java
/// machine, the configuration, the secrets.
class zvEventRunner {
public:
    virtual ~zvEventRunner() = default;

    /// Throws the zvProgramFailure of what would stop every event: secrets, or a gateway home, that cannot be
    /// used.
    virtual void prepare() = 0;
    /// Takes the event with these arguments, `key=value` each in the locale's encoding. Of the secrets those
    /// in `secretNames` become arguments of it; if that is null, all but the file server's.
    virtual zvEventOutcome run(std::vector<std::string> arguments, const std::set<zvString>* secretNames) = 0;
    /// What became of the event that is being run, for a zvProcessEnd; null while there is none.
    virtual const zvEventOutcome* running() const = 0;
};

#endif
