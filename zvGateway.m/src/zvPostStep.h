#ifndef ZV_POST_STEP_H
#define ZV_POST_STEP_H

#include "zvRoadEvent.h"
#include "zvRoadReport.h"

/// The step that posts the event's arguments to the local server, unless an earlier run has.
class zvPostStep {
public:
    /// The server's answer is added to the report.
    zvPostStep(zvRoadEvent& event, zvRoadReport& report) : m_event(event), m_report(report) {}

    /// Throws a zvStepFailure.
    zvStepOutcome run();

private:
    zvRoadEvent& m_event;
    zvRoadReport& m_report;
};

#endif
