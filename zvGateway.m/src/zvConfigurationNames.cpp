#include "zvConfigurationNames.h"

#include "zvCfgFile.h"
#include "zvCharString.h"
#include "zvCndParsingUtils.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"

namespace zvConfigurationNames {

std::string quoted(const zvString& text) { return '"' + zvConsole::printable(text) + '"'; }

std::string types(const zvString& localType, const zvString& remoteType) {
    return quoted(localType) + " -> " + quoted(remoteType);
}

std::string object(const zvCfgObject& object) {
    const char* const kind = dynamic_cast<const zvCfgFile*>(&object) == nullptr ? "object " : "file object ";
    return kind + types(object.getLocalCustomType(), object.getRemoteCustomType());
}

std::string attribute(const zvCfgAttribute& attribute) {
    for (const zvString* const name :
         {&attribute.localName(), &attribute.remoteName(), &attribute.keyName()}) {
        if (!name->empty()) {
            return "attribute " + quoted(*name);
        }
    }
    return "attribute without a name";
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
