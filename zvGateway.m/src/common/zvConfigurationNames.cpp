#include "zvConfigurationNames.h"

#include "zvCfgDescription.h"
#include "zvCharString.h"
#include "zvCndParsingUtils.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"

namespace {

zvString withoutBlanks(zvString text) {
    text.replace(" ", "");
    return text;
}

}  // namespace

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

Rule rule(const zvCfgObject& object) {
    const zvCndCondition condition = object.getMappingRule();
    if (condition.IsNull()) {
        return {};
    }
    Rule rule{object.getMappingRuleText(), zvCndParsingUtils::createConditionString(condition)};
    rule.written.trim();
    rule.read.trim();
    if (withoutBlanks(rule.written) == withoutBlanks(rule.read)) {
        rule.read = zvString();
    }
    return rule;
}

}  // namespace zvConfigurationNames
