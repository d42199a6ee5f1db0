#ifndef ZV_MAPPING_STEP_H
#define ZV_MAPPING_STEP_H

#include "zvGatewayEvent.h"
#include "zvObjectMapping.h"

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
    bool isLocal() const { return !m_strLocalType.empty(); }
    const zvCfgObjectList& candidates() const;
    zvObjectMapping mapObject() const;
    std::string describeObject(const zvObjectMapping& mapping, const zvCfgObject& object) const;
    void checkValues(const zvObjectMapping& mapping) const;
    zvObjectMapping::Values attributeValues() const;
    void showTransition(const zvCfgObject& object) const;

    const zvGatewayEvent& m_event;
    zvString m_strLocalType;
    zvString m_strRemoteType;
};

#endif
