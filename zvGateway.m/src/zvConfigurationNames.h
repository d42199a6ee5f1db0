#ifndef ZV_CONFIGURATION_NAMES_H
#define ZV_CONFIGURATION_NAMES_H

#include <string>

#include "zvCfgAttribute.h"
#include "zvCfgObject.h"
#include "zvCfgTransition.h"

/// How the parts of a configuration are named towards a person. The texts are printable.
namespace zvConfigurationNames {

/// `"` + text + `"`.
std::string quoted(const zvString& text);
/// `"Part" -> "WTPart"`.
std::string types(const zvString& localType, const zvString& remoteType);
/// `object "Part" -> "WTPart"`, or `file object ...`.
std::string object(const zvCfgObject& object);
/// By the first of its local name, remote name and key that it has.
std::string attribute(const zvCfgAttribute& attribute);
/// The configuration file's word; "unknown" for what is none of its five types.
std::string dataType(zvDataTypeEnum type);
/// "promote" or "demote".
const char* transition(zvCfgTransitionTypeEnum type);
/// The rule as the condition language has it; empty for an object without one.
zvString rule(const zvCfgObject& object);

}  // namespace zvConfigurationNames

#endif
