#include "zvObjectMapping.h"

#include <utility>

#include "zvCfgAttribute.h"
#include "zvTypedValue.h"

zvObjectMapping::zvObjectMapping(Direction direction, Values values)
    : m_direction(direction), m_values(std::move(values)) {}

bool zvObjectMapping::map(const zvCfgObjectList* candidates) {
    const int count = candidates == nullptr ? 0 : candidates->size();
    for (int i = 0; i < count; ++i) {
        const zvCfgObject& candidate = *candidates->get(i);
        m_passedOver.push_back(&candidate);
        if (applies(candidate)) {
            m_passedOver.pop_back();
            m_pObject = &candidate;
            carry(candidate);
            return true;
        }
    }
    return false;
}

bool zvObjectMapping::applies(const zvCfgObject& object) const {
    const zvCndCondition rule = object.getMappingRule();
    return rule.IsNull() || rule->evaluate(contextFor(object));
}

// A rule may name an attribute as either system does: it is written once for both directions.
zvCndContext zvObjectMapping::contextFor(const zvCfgObject& object) const {
    zvCndContext context;
    const auto add = [&context](const zvString& name, const zvValue& value) {
        zvAttribute attribute(name, value);
        context.addAttribute(attribute);
    };
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        if (const zvString* const given = findValue(sourceName(attribute))) {
            const zvValue value = toTypedValue(*given, attribute.getDataType());
            add(sourceName(attribute), value);
            add(targetName(attribute), value);
        }
    }
    for (const auto& [name, value] : m_values) {
        add(name, zvValue(value));
    }
    return context;
}

void zvObjectMapping::carry(const zvCfgObject& object) {
    Values left = m_values;
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        const zvString& from = sourceName(attribute);
        const zvString& to = targetName(attribute);
        const zvString* const given = findValue(from);
        if (to.empty() || (given == nullptr && !attribute.isDefaultValueSpecified())) {
            continue;
        }
        left.erase(from);
        m_attributes.push_back({from, to, given == nullptr ? attribute.getDefaultValue() : *given,
                                attribute.getDataType(), given == nullptr});
    }
    for (const auto& [name, value] : left) {
        m_unmapped.push_back(name);
    }
}

const zvString* zvObjectMapping::findValue(const zvString& name) const {
    const auto found = m_values.find(name);
    return name.empty() || found == m_values.end() ? nullptr : &found->second;
}

const zvString& zvObjectMapping::sourceName(const zvCfgAttribute& attribute) const {
    return m_direction == Direction::localToRemote ? attribute.localName() : attribute.remoteName();
}

const zvString& zvObjectMapping::targetName(const zvCfgAttribute& attribute) const {
    return m_direction == Direction::localToRemote ? attribute.remoteName() : attribute.localName();
}
