#include "zvMappingReport.h"

#include "zvCfgTransitionPath.h"
#include "zvConsole.h"
#include "zvNearestName.h"

using zvConsole::printable;

namespace {

using Account = zvMappingAccount;

std::string verdictOf(const Account::Candidate& candidate) {
    switch (candidate.verdict) {
        case Account::Verdict::taken:
            return candidate.rule.empty() ? "taken, it has no mapping rule" : "taken, its mapping rule holds";
        case Account::Verdict::doesNotHold:
            return "its mapping rule does not hold";
        case Account::Verdict::cannotBeEvaluated:
            return "its mapping rule cannot be evaluated: " + printable(candidate.reason);
        default:
            return "not asked any more";
    }
}

std::string headingOf(const Account::Candidate& candidate) {
    const int line = candidate.object->getPosition().line;
    const bool hasPlace = line > 0 && candidate.verdict != Account::Verdict::notAsked;
    return zvMappingReport::typesOf(*candidate.object) +
           (hasPlace ? ", line " + std::to_string(line) + " of the configuration" : "") + ": " +
           verdictOf(candidate);
}

std::string sourceOf(const Account::Attribute& attribute) {
    return "from " + printable(attribute.from) + ", " +
           (attribute.type.empty() ? "unknown type" : printable(attribute.type)) +
           (attribute.comparedAs.has_value() ? ", compared as " + printable(*attribute.comparedAs) : "");
}

}  // namespace

std::string zvMappingReport::typesOf(const zvCfgObject& object) {
    return printable(object.getLocalCustomType()) + " -> " + printable(object.getRemoteCustomType());
}

zvMappingReport::Facts zvMappingReport::candidates() const {
    Facts facts;
    for (const Account::Candidate& candidate : m_account.candidates()) {
        facts.emplace_back("candidate", headingOf(candidate));
        for (const zvConditionExplanation::Part& part : candidate.rule) {
            facts.emplace_back("", part.line());
        }
    }
    return facts;
}

zvMappingReport::Facts zvMappingReport::object(bool explains) const {
    Facts facts;
    if (m_account.object() == nullptr) {
        return facts;
    }
    facts.emplace_back("object", typesOf(*m_account.object()));
    for (const Account::Attribute& attribute : m_account.attributes()) {
        const std::string source = attribute.isDefault ? "default" : explains ? sourceOf(attribute) : "";
        facts.emplace_back(printable(attribute.name),
                           printable(attribute.value) + (source.empty() ? "" : "  (" + source + ")"));
    }
    if (explains) {
        for (const zvString& name : m_account.withoutValue()) {
            facts.emplace_back("without a value", printable(name));
        }
    }
    addUnmapped(facts);
    return facts;
}

// What the configuration does not carry across, and the name that may have been meant.
void zvMappingReport::addUnmapped(Facts& facts) const {
    for (const Account::Unmapped& value : m_account.unmapped()) {
        const std::string name = printable(value.name);
        if (value.isKnown) {
            facts.emplace_back("without a mapping", name);
        } else {
            facts.emplace_back("warning", "the object has no attribute \"" + name + '"' +
                                              zvNearestName::question(value.meant));
        }
    }
}

void zvMappingReport::print(const Facts& facts) {
    for (const auto& [name, text] : facts) {
        zvConsole::fact(name, text);
    }
}

void zvMappingReport::print(const zvLifecycleWay& way) {
    const zvCfgTransitionPath& path = way.path();
    zvConsole::fact("from state", zvLifecycleWay::namesOf(*path.getStateAt(0)));
    for (int i = 0; i < path.size(); ++i) {
        zvConsole::fact(printable(zvCfgTransition::typeName(path.getTransitionAt(i)->getType())) + " to",
                        zvLifecycleWay::namesOf(*path.getStateAt(i + 1)));
    }
}
