#ifndef ZV_EVENT_ROAD_H
#define ZV_EVENT_ROAD_H

#include <cstddef>
#include <string>
#include <vector>

#include "zvEventOutcome.h"
#include "zvGatewayEvent.h"

/// The road of one event through the gateway, step by step. Each step prints what it does; the first one that
/// cannot do its job ends the road.
class zvEventRoad {
public:
    /// `session` is used as long as the road lives; the arguments are `key=value` each. Of the session's
    /// secrets those in `secretNames` become arguments; if that is null, all but the file server's.
    zvEventRoad(zvRoadSession& session, std::vector<std::string> arguments,
                const std::set<zvString>* secretNames = nullptr);

    /// Throws, after the summary, the zvProgramFailure of a step that failed.
    void run();
    /// What became of the event, once it was run, or the process ends in it.
    const zvEventOutcome& outcome() const { return m_outcome; }

private:
    struct Step;
    static const Step steps[];

    void walk();
    zvExitCode endWithProcess();
    void take(const Step& step);
    void recordOutcomes();
    void end(const zvProgramFailure* failure);
    void conclude(const zvProgramFailure* failure);
    void summarize(zvExitCode exitCode);

    zvGatewayEvent m_event;
    zvEventOutcome m_outcome;
    std::size_t m_recorded = 0;  // steps whose outcomes are in the record
};

#endif
