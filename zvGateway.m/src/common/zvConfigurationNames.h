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
/// `object "Part" -> "ReleasedPart"`, or `file object ...`.
std::string object(const zvCfgObject& object);
/// The configuration file's word; "unknown" for any other type.
std::string dataType(zvDataTypeEnum type);
/// "promote" or "demote".
const char* transition(zvCfgTransitionTypeEnum type);

struct Rule {
    /// As the configuration file has it, without blanks at its ends; empty for an object without a rule.
    zvString written;
    /// With all its brackets, in the order in which it is evaluated; empty if only blanks differ.
    zvString read;
};
Rule rule(const zvCfgObject& object);

}  // namespace zvConfigurationNames

#endif
