#ifndef ZV_GATEWAY_HOME_STEP_H
#define ZV_GATEWAY_HOME_STEP_H

#include "zvGatewayEvent.h"

/// The step that looks at the gateway home: its log configuration and its client configuration.
class zvGatewayHomeStep {
public:
    explicit zvGatewayHomeStep(zvGatewayEvent& event) : m_event(event) {}

    /// Whether the environment names a home.
    static bool isHomeNamed();

    /// Where events are posted; empty if the client configuration does not say so. Its line may end as on
    /// Windows.
    static zvString localServerUrl();

    /// Throws the zvStepFailure of a home, or of a file in it, that cannot be used.
    static void requireUsable(bool requiresLog);
    /// The same. Sets the time that the event has.
    zvStepOutcome run() const;

private:
    zvGatewayEvent& m_event;
};

#endif
