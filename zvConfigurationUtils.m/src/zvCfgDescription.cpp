#include "zvCfgDescription.h"

#include "zvCfgFile.h"
#include "zvTextBuilder.h"

zvString zvCfgDescription::ofObject(const zvCfgObject& object) {
    const bool isFile = dynamic_cast<const zvCfgFile*>(&object) != nullptr;
    return zvTextBuilder::concat(isFile ? "file object \"" : "object \"", object.getLocalCustomType(),
                                 "\" -> \"", object.getRemoteCustomType(), "\"");
}

zvString zvCfgDescription::ofLifecycle(const zvString& objectType) {
    return zvTextBuilder::concat("lifecycle \"", objectType, "\"");
}

zvString zvCfgDescription::ofViewCollection(const zvString& name) {
    return zvTextBuilder::concat("view collection \"", name, "\"");
}
