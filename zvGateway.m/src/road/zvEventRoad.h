#ifndef ZV_EVENT_ROAD_H
#define ZV_EVENT_ROAD_H

#include <cstddef>
#include <string>
#include <vector>

#include "zvGatewayEvent.h"
#include "zvRoadOptions.h"

/// The road of one event through the gateway, step by step. Each step prints what it does; the first one that
/// cannot do its job ends the road.
class zvEventRoad {
public:
    /// The event's arguments, `key=value` each.
    std::vector<std::string> arguments;
    zvRoadOptions options;

    /// Throws, after the summary, the zvProgramFailure of a step that failed.
    void run();

private:
    struct Step;
    static const Step steps[];

    void walk();
    void take(const Step& step);
    void recordOutcomes();
    void end(const zvProgramFailure* failure);
    void summarize(zvExitCode exitCode);

    zvGatewayEvent m_event;
    std::size_t m_recorded = 0;  // steps whose outcomes are in the record
};

#endif
