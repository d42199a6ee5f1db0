#ifndef ZV_CONFIGURATION_STEP_H
#define ZV_CONFIGURATION_STEP_H

#include "zvGatewayEvent.h"

/// The step that reads the mapping configuration, unless the event has no object to map: the file that the
/// argument "ConfigFile" names, or "customization-config.xml" in the gateway home's folder "config".
class zvConfigurationStep {
public:
    explicit zvConfigurationStep(const zvGatewayEvent& event) : m_event(event) {}

    /// Throws the zvStepFailure of a configuration that cannot be read to its end.
    zvStepOutcome run() const;

private:
    const zvGatewayEvent& m_event;
};

#endif
