#ifndef ZV_MAPPING_STEP_H
#define ZV_MAPPING_STEP_H

#include "zvObjectMapping.h"
#include "zvRoadEvent.h"
#include "zvRoadReport.h"

/// The steps that need the configuration: it is read, and the event's object is mapped into the event's data
/// file, and the way between two lifecycle states is told.
///
/// The arguments: "ConfigFile" (absent: "customization-config.xml" in the home's folder "config"),
/// "LocalType" or "RemoteType", "attr.NAME" for each attribute, "FromState" and "ToState". An event without a
/// type has no object to map and needs no configuration, and a data file that has arrived is not made again.
class zvMappingStep {
public:
    explicit zvMappingStep(const zvRoadEvent& event);

    /// The two steps in their order. They throw a zvStepFailure.
    zvStepOutcome readConfiguration() const;
    zvStepOutcome mapObject() const;

private:
    std::string reasonToLeaveOut() const;
    const zvCfgObjectList& candidates() const;
    void showMapping(const zvObjectMapping& mapping) const;
    void writeData(const zvObjectMapping& mapping) const;
    void showTransition(const zvCfgObject& object) const;
    zvObjectMapping::Values attributeValues() const;

    const zvRoadEvent& m_event;
    zvString m_strLocalType;
    zvString m_strRemoteType;
};

#endif
