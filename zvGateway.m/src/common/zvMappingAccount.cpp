#include "zvMappingAccount.h"

#include <algorithm>

#include "zvDataTypeWords.h"
#include "zvException.h"
#include "zvNearestName.h"
#include "zvObjectAttribute.h"
#include "zvTypedValue.h"

namespace {

zvString shownValue(const zvObjectMapping::Attribute& attribute, const zvString& value) {
    return zvSecrets::maskedValue(attribute.to, zvObjectAttribute::shownValue(attribute.from, value));
}

}  // namespace

zvMappingAccount::Candidate zvMappingAccount::ask(const zvCfgObject& object) const {
    const zvCndCondition rule = object.getMappingRule();
    if (rule.IsNull()) {
        return {&object, Verdict::taken, {}, {}};
    }
    try {
        const zvConditionExplanation explanation(rule, m_trial.mapping().contextFor(object));
        return {
            &object, explanation.outcome() ? Verdict::taken : Verdict::doesNotHold, {}, explanation.parts()};
    } catch (const zvException& exception) {
        return {&object, Verdict::cannotBeEvaluated, exception.getResult().getMessage(), {}};
    }
}

std::vector<zvMappingAccount::Candidate> zvMappingAccount::candidates() const {
    std::vector<Candidate> candidates;
    const zvObjectMapping& mapping = m_trial.mapping();
    for (const zvCfgObject* const object : mapping.passedOver()) {
        candidates.push_back(ask(*object));
    }
    if (mapping.hasObject()) {
        candidates.push_back(ask(mapping.object()));
    }
    const int count = m_trial.candidates() == nullptr ? 0 : m_trial.candidates()->size();
    for (int i = static_cast<int>(candidates.size()); i < count; ++i) {
        candidates.push_back({m_trial.candidates()->get(i), Verdict::notAsked, {}, {}});
    }
    return candidates;
}

std::vector<zvMappingAccount::Attribute> zvMappingAccount::attributes() const {
    std::vector<Attribute> attributes;
    for (const zvObjectMapping::Attribute& attribute : m_trial.mapping().attributes()) {
        const zvString read = toTypedValue(attribute.value, attribute.type).getValue();
        const bool isReadAsIs = attribute.type == zvDataTypeFloat || read == attribute.value;
        attributes.push_back(
            {attribute.to, shownValue(attribute, attribute.value), attribute.isDefault, attribute.from,
             attribute.type == zvDataTypeNone ? zvString() : zvDataTypeWords::wordOf(attribute.type).data(),
             isReadAsIs ? std::nullopt : std::optional(shownValue(attribute, read))});
    }
    return attributes;
}

std::vector<zvString> zvMappingAccount::withoutValue() const {
    std::vector<zvString> names;
    const zvObjectMapping& mapping = m_trial.mapping();
    for (int i = 0; mapping.hasObject() && i < mapping.object().numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *mapping.object().getAttribute(i);
        const zvString& to = mapping.targetName(attribute);
        if (!to.empty() && mapping.findText(mapping.sourceName(attribute)) == nullptr &&
            !attribute.isDefaultValueSpecified()) {
            names.push_back(to);
        }
    }
    return names;
}

std::vector<zvMappingAccount::Unmapped> zvMappingAccount::unmapped() const {
    std::vector<Unmapped> unmapped;
    const zvObjectMapping& mapping = m_trial.mapping();
    if (mapping.unmapped().empty()) {
        return unmapped;
    }
    std::vector<zvString> known;
    known.reserve(static_cast<std::size_t>(mapping.object().numAttributes()));
    for (int i = 0; i < mapping.object().numAttributes(); ++i) {
        known.push_back(mapping.sourceName(*mapping.object().getAttribute(i)));
    }
    for (const zvString& name : mapping.unmapped()) {
        const bool isKnown = std::find(known.begin(), known.end(), name) != known.end();
        unmapped.push_back({name, isKnown, isKnown ? "" : zvNearestName::find(name, known)});
    }
    return unmapped;
}
