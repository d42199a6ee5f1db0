#include "zvMappingReport.h"

#include <algorithm>

#include "zvCfgTransitionPath.h"
#include "zvCharString.h"
#include "zvConditionExplanation.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"
#include "zvException.h"
#include "zvLifecycleWay.h"
#include "zvNearestName.h"
#include "zvObjectAttribute.h"
#include "zvTypedValue.h"

namespace {

std::string shownValue(const zvString& from, const zvString& to, const zvString& value) {
    return zvConsole::printable(zvSecrets::maskedValue(to, zvObjectAttribute::shownValue(from, value)));
}

// The candidate's heading, and below it a line for each part of its rule.
void addCandidate(zvMappingReport::Facts& facts, const zvCfgObject& object, const zvObjectMapping& mapping) {
    const int line = object.getPosition().line;
    const std::string heading = zvMappingReport::typesOf(object) +
                                (line > 0 ? ", line " + std::to_string(line) + " of the configuration" : "") +
                                ": ";
    const zvCndCondition rule = object.getMappingRule();
    if (rule.IsNull()) {
        facts.emplace_back("candidate", heading + "taken, it has no mapping rule");
        return;
    }
    try {
        const zvConditionExplanation explanation(rule, mapping.contextFor(object));
        facts.emplace_back("candidate", heading + (explanation.outcome() ? "taken, its mapping rule holds"
                                                                         : "its mapping rule does not hold"));
        for (const std::string& part : explanation.lines()) {
            facts.emplace_back("", part);
        }
    } catch (const zvException& exception) {
        facts.emplace_back("candidate", heading + "its mapping rule cannot be evaluated: " +
                                            zvConsole::printable(exception.getResult().getMessage()));
    }
}

}  // namespace

std::string zvMappingReport::typesOf(const zvCfgObject& object) {
    return zvConsole::printable(object.getLocalCustomType()) + " -> " +
           zvConsole::printable(object.getRemoteCustomType());
}

zvMappingReport::Facts zvMappingReport::candidates() const {
    Facts facts;
    const zvObjectMapping& mapping = m_trial.mapping();
    for (const zvCfgObject* const object : mapping.passedOver()) {
        addCandidate(facts, *object, mapping);
    }
    if (mapping.hasObject()) {
        addCandidate(facts, mapping.object(), mapping);
    }
    const int count = m_trial.candidates() == nullptr ? 0 : m_trial.candidates()->size();
    const int asked = static_cast<int>(mapping.passedOver().size()) + (mapping.hasObject() ? 1 : 0);
    for (int i = asked; i < count; ++i) {
        facts.emplace_back("candidate", typesOf(*m_trial.candidates()->get(i)) + ": not asked any more");
    }
    return facts;
}

zvMappingReport::Facts zvMappingReport::object(bool explains) const {
    Facts facts;
    const zvObjectMapping& mapping = m_trial.mapping();
    if (!mapping.hasObject()) {
        return facts;
    }
    facts.emplace_back("object", typesOf(mapping.object()));
    for (const zvObjectMapping::Attribute& attribute : mapping.attributes()) {
        const std::string source = attribute.isDefault ? "default" : explains ? sourceOf(attribute) : "";
        facts.emplace_back(zvConsole::printable(attribute.to),
                           shownValue(attribute.from, attribute.to, attribute.value) +
                               (source.empty() ? "" : "  (" + source + ")"));
    }
    if (explains) {
        addWithoutValue(facts);
    }
    addUnmapped(facts);
    return facts;
}

// The name that it came under, its type, and what rules compare when the type reads it as something else. Of
// a Float the text only has more digits.
std::string zvMappingReport::sourceOf(const zvObjectMapping::Attribute& attribute) const {
    const std::string type = attribute.type == zvDataTypeNone
                                 ? "unknown type"
                                 : zvCharString(zvDataTypeWords::wordOf(attribute.type).data()).data();
    const zvString read = toTypedValue(attribute.value, attribute.type).getValue();
    return "from " + zvConsole::printable(attribute.from) + ", " + type +
           (attribute.type == zvDataTypeFloat || read == attribute.value
                ? ""
                : ", compared as " + shownValue(attribute.from, attribute.to, read));
}

void zvMappingReport::addWithoutValue(Facts& facts) const {
    const zvObjectMapping& mapping = m_trial.mapping();
    for (int i = 0; i < mapping.object().numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *mapping.object().getAttribute(i);
        const zvString& from = mapping.sourceName(attribute);
        const zvString& to = mapping.targetName(attribute);
        if (!to.empty() && mapping.findValue(from) == nullptr && !attribute.isDefaultValueSpecified()) {
            facts.emplace_back("without a value", zvConsole::printable(to));
        }
    }
}

// What the configuration does not carry across, and the name that may have been meant.
void zvMappingReport::addUnmapped(Facts& facts) const {
    const zvObjectMapping& mapping = m_trial.mapping();
    if (mapping.unmapped().empty()) {
        return;
    }
    std::vector<zvString> known;
    known.reserve(static_cast<std::size_t>(mapping.object().numAttributes()));
    for (int i = 0; i < mapping.object().numAttributes(); ++i) {
        known.push_back(mapping.sourceName(*mapping.object().getAttribute(i)));
    }
    for (const zvString& name : mapping.unmapped()) {
        const bool isKnown = std::find(known.begin(), known.end(), name) != known.end();
        const std::string text = zvConsole::printable(name);
        if (isKnown) {
            facts.emplace_back("without a mapping", text);
        } else {
            facts.emplace_back("warning", "the object has no attribute \"" + text + "\"" +
                                              zvNearestName::suggestion(name, known));
        }
    }
}

void zvMappingReport::print(const Facts& facts) {
    for (const auto& [name, text] : facts) {
        zvConsole::fact(name, text);
    }
}

bool zvMappingReport::printWay(const zvCfgObject& object, const zvString& from, const zvString& to) {
    const zvLifecycleWay way({object.getLocalCustomType(), object.getOotbTypeStr()}, from, to);
    if (!way.exists()) {
        return false;
    }
    const zvCfgTransitionPath& path = way.path();
    zvConsole::fact("from state", zvLifecycleWay::namesOf(*path.getStateAt(0)));
    for (int i = 0; i < path.size(); ++i) {
        zvConsole::fact(
            zvConsole::printable(zvCfgTransition::typeName(path.getTransitionAt(i)->getType())) + " to",
            zvLifecycleWay::namesOf(*path.getStateAt(i + 1)));
    }
    return true;
}
