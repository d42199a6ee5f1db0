#ifndef ZV_SHADOW_DIRECTORY_STEP_H
#define ZV_SHADOW_DIRECTORY_STEP_H

#include "zvGatewayEvent.h"

/// The step that gives the event its directory: a new one below "RootShadowDir", or, when the event is run
/// again, the one that "EventShadowDir" names there. Files of it that are missing are made, and the event's
/// record is begun or continued.
class zvShadowDirectoryStep {
public:
    explicit zvShadowDirectoryStep(zvGatewayEvent& event) : m_event(event) {}

    /// Throws a zvStepFailure.
    zvStepOutcome run();

private:
    void makeDirectory();
    void makeDirectoryAfter2038(const zvString& root);
    void beginAttempt(const zvEventRecord::Given& given);
    void resumeIn(const zvString& name);
    void requireFiles(const std::string& reason) const;

    zvGatewayEvent& m_event;
};

#endif
