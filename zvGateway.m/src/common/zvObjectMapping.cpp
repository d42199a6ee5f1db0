#include "zvObjectMapping.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "zvCfgAttribute.h"
#include "zvTypedValue.h"

namespace {

// Whether the rules of both objects see the same attributes: objects of one type mostly do.
bool areComparedAlike(const zvCfgObject& one, const zvCfgObject& other) {
    const int count = one.numAttributes();
    if (&one == &other) {
        return true;
    }
    if (count != other.numAttributes()) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        const zvCfgAttribute& left = *one.getAttribute(i);
        const zvCfgAttribute& right = *other.getAttribute(i);
        if (left.getDataType() != right.getDataType() || left.localName() != right.localName() ||
            left.remoteName() != right.remoteName()) {
            return false;
        }
    }
    return true;
}

}  // namespace

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

const zvCndContext& zvObjectMapping::contextFor(const zvCfgObject& object) const {
    if (m_pCompared == nullptr || !areComparedAlike(*m_pCompared, object)) {
        m_context = zvCndContext();
        fill(m_context, object);
    }
    m_pCompared = &object;
    return m_context;
}

// A rule may name an attribute as either system does: it is written once for both directions.
void zvObjectMapping::fill(zvCndContext& context, const zvCfgObject& object) const {
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
        if (context.findValue(name) == nullptr) {
            add(name, zvValue(value));
        }
    }
}

void zvObjectMapping::carry(const zvCfgObject& object) {
    std::vector<const zvString*> carried;  // the values that have a place, by their addresses
    m_attributes.reserve(static_cast<std::size_t>(object.numAttributes()));
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        const zvString& from = sourceName(attribute);
        const zvString& to = targetName(attribute);
        const zvString* const given = findValue(from);
        if (to.empty() || (given == nullptr && !attribute.isDefaultValueSpecified())) {
            continue;
        }
        if (given != nullptr) {
            carried.push_back(given);
        }
        m_attributes.push_back({from, to, given == nullptr ? attribute.getDefaultValue() : *given,
                                attribute.getDataType(), given == nullptr});
    }
    std::sort(carried.begin(), carried.end(), std::less<>());
    for (const auto& [name, value] : m_values) {
        if (!std::binary_search(carried.begin(), carried.end(), &value, std::less<>())) {
            m_unmapped.push_back(name);
        }
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
