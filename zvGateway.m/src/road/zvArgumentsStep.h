#ifndef ZV_ARGUMENTS_STEP_H
#define ZV_ARGUMENTS_STEP_H

#include "zvGatewayEvent.h"

/// The step that reads the event's arguments, from the command line and from where secrets are kept.
class zvArgumentsStep {
public:
    explicit zvArgumentsStep(zvGatewayEvent& event) : m_event(event) {}

    /// Throws the zvStepFailure of a source of secrets that cannot be used, of arguments that cannot, or of
    /// ones that are missing, all of them named. Nothing has been made or logged by then.
    zvStepOutcome run();

private:
    void requireUsable(const zvSecretStore& secrets) const;
    void parse(const zvSecretStore& secrets);
    void show() const;
    void requireArguments() const;

    zvGatewayEvent& m_event;
};

#endif
