#include "zvConfigurationNames.h"

#include "zvCfgDescription.h"
#include "zvCharString.h"
#include "zvCndParsingUtils.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"

namespace zvConfigurationNames {

std::string quoted(const zvString& text) { return '"' + zvConsole::printable(text) + '"'; }

std::string object(const zvCfgObject& object) {
    return zvConsole::printable(zvCfgDescription::ofObject(object));
}

std::string dataType(zvDataTypeEnum type) {
    return type == zvDataTypeNone ? "unknown" : zvCharString(zvDataTypeWords::wordOf(type).data()).data();
}

const char* transition(zvCfgTransitionTypeEnum type) {
    return type == zvCfgTransitionPromote ? "promote" : "demote";
}

zvString rule(const zvCfgObject& object) {
    const zvCndCondition condition = object.getMappingRule();
    return condition.IsNull() ? zvString() : zvCndParsingUtils::createConditionString(condition);
}

}  // namespace zvConfigurationNames
