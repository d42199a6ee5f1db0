#ifndef ZV_MAPPING_STEP_H
#define ZV_MAPPING_STEP_H

#include "zvGatewayEvent.h"
#include "zvMappingTrial.h"

/// The step that maps the event's object into the event's data file, and shows the way between two of its
/// lifecycle states.
///
/// The arguments: "LocalType" or "RemoteType", "attr.NAME" for each attribute, "FromState" and "ToState".
class zvMappingStep {
public:
    explicit zvMappingStep(const zvGatewayEvent& event);

    /// Why there is nothing to map, as for an event without a type, or one whose data file has arrived before
    /// and is not made again; empty when there is.
    std::string reasonToLeaveOut() const;

    /// Throws a zvStepFailure.
    zvStepOutcome run() const;

private:
    zvIncomingObject incomingObject() const;
    void report(const zvMappingTrial& trial) const;
    std::string describeObject(const zvObjectMapping& mapping, const zvCfgObject& object) const;
    void show(const zvMappingTrial& trial) const;
    void refuse(const zvMappingTrial& trial) const;
    zvObjectMapping::Values attributeValues() const;
    void showTransition(const zvCfgObject& object) const;

    const zvGatewayEvent& m_event;
    zvIncomingObject m_object;
};

#endif
