#ifndef ZV_POST_STEP_H
#define ZV_POST_STEP_H

#include "zvGatewayEvent.h"

/// The step that posts the event's arguments to the local server, unless an earlier run has.
class zvPostStep {
public:
    explicit zvPostStep(zvGatewayEvent& event) : m_event(event) {}

    /// Adds the server's answer to the report. Throws a zvStepFailure.
    zvStepOutcome run();

private:
    zvGatewayEvent& m_event;
};

#endif
