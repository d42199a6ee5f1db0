#ifndef ZV_MAPPING_STEP_H
#define ZV_MAPPING_STEP_H

#include "zvEventArguments.h"
#include "zvObjectMapping.h"

/// The steps of the road that need the configuration: it is read, the event's object is mapped into the
/// event's data file, and the way between two lifecycle states is told.
///
/// The arguments: "ConfigFile" (absent: "customization-config.xml" in the home's folder "config"),
/// "LocalType" or "RemoteType", "attr.NAME" for each attribute, "FromState" and "ToState". An event without a
/// type has no object to map and needs no configuration.
class zvMappingStep {
public:
    /// Both are kept by reference: the arguments, and the path of the event's data file.
    zvMappingStep(const zvEventArguments& arguments, const zvString& dataFile);

    /// Throws a zvStepFailure.
    void run();

private:
    void readConfiguration() const;
    void mapObject();
    void writeData(const zvObjectMapping& mapping) const;
    void showTransition(const zvCfgObject& object) const;
    zvObjectMapping::Values attributeValues() const;

    const zvEventArguments& m_arguments;
    const zvString& m_strDataFile;
    zvString m_strLocalType;
    zvString m_strRemoteType;
};

#endif
