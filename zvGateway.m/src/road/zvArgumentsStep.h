#ifndef ZV_ARGUMENTS_STEP_H
#define ZV_ARGUMENTS_STEP_H

#include "zvGatewayEvent.h"

/// The step that reads the event's arguments from the command line.
class zvArgumentsStep {
public:
    explicit zvArgumentsStep(zvGatewayEvent& event) : m_event(event) {}

    /// Throws the zvStepFailure of arguments that are missing, all of them named.
    zvStepOutcome run();

private:
    void parse();
    void show() const;
    void requireArguments() const;

    zvGatewayEvent& m_event;
};

#endif
