#ifndef ZV_MAPPING_TRIAL_H
#define ZV_MAPPING_TRIAL_H

#include <string>
#include <vector>

#include "zvObjectMapping.h"

/// An object as an event brings it. With a local type it comes from the local system, and a remote type then
/// only chooses among the objects with that local type.
struct zvIncomingObject {
    zvString localType;
    zvString remoteType;
    /// The attributes, under their names in the system that it comes from.
    zvObjectMapping::Values values;

    bool isLocal() const { return !localType.empty(); }
    /// The type in the system that it comes from.
    const zvString& type() const { return isLocal() ? localType : remoteType; }
    /// The objects of the configuration by which it may be mapped; null if there is none.
    const zvCfgObjectList* candidates() const;
};

/// Maps an object by the configuration that the manager has, as an event does, and keeps what came of it.
class zvMappingTrial {
public:
    /// The object has to outlive this one.
    explicit zvMappingTrial(const zvIncomingObject& object);

    const zvObjectMapping& mapping() const { return m_mapping; }
    const zvCfgObjectList* candidates() const { return m_pCandidates; }
    /// Why no object of the configuration was taken, printable; empty if one was.
    const std::string& reason() const { return m_reason; }
    /// What is wrong with the values, printable.
    const std::vector<std::string>& faults() const { return m_faults; }
    /// What an event is refused for: subject and reason in one text; empty if it is not.
    std::string refusal() const;
    /// The same for the faults alone.
    std::string faultText() const;

private:
    std::string map();

    const zvCfgObjectList* m_pCandidates;
    zvObjectMapping m_mapping;
    std::string m_reason;
    std::vector<std::string> m_faults;
};

#endif
