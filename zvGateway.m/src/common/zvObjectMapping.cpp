#include "zvObjectMapping.h"

#include <algorithm>
#include <functional>

#include "zvCfgAttribute.h"
#include "zvTypedValue.h"

namespace {

// Whether the rules of both objects see the same attributes.
bool areSeenAlike(const zvCfgObject& one, const zvCfgObject& other) {
    return &one == &other ||
           (one.getAttributeGroup() != 0 && one.getAttributeGroup() == other.getAttributeGroup());
}

}  // namespace

zvObjectMapping::zvObjectMapping(Direction direction, const Values& values)
    : m_direction(direction), m_values(values) {}

bool zvObjectMapping::map(const zvCfgObjectList* candidates) {
    const int count = candidates == nullptr ? 0 : candidates->size();
    m_passedOver.reserve(static_cast<std::size_t>(count));
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
    const zvCndCondition& rule = object.mappingRule();
    return rule.IsNull() || rule->evaluate(contextFor(object));
}

const zvCndContext& zvObjectMapping::contextFor(const zvCfgObject& object) const {
    View& view = viewOf(object);
    if (!view.context.has_value()) {
        fillContext(view);
    }
    return *view.context;
}

zvObjectMapping::View& zvObjectMapping::viewOf(const zvCfgObject& object) const {
    if (m_view.object == nullptr || !areSeenAlike(*m_view.object, object)) {
        m_view.object = &object;
        m_view.given.clear();
        m_view.typed.clear();
        m_view.isWhole = false;
        m_view.context.reset();
        const int count = object.numAttributes();
        m_view.given.reserve(static_cast<std::size_t>(count));
        for (int i = 0; i < count; ++i) {
            m_view.given.push_back(findValue(sourceName(*object.getAttribute(i))));
        }
    }
    return m_view;
}

// A rule may name an attribute as either system does: it is written once for both directions.
void zvObjectMapping::fillContext(View& view) const {
    const std::size_t count = view.given.size();
    zvCndContext& context = view.context.emplace();
    std::size_t seen = 0;                         // of the values
    view.typed.reserve(count + m_values.size());  // they do not move any more
    context.reserve(static_cast<int>(2 * count));
    for (std::size_t i = 0; i < count; ++i) {
        if (view.given[i] != nullptr) {
            const zvCfgAttribute& attribute = *view.object->getAttribute(static_cast<int>(i));
            view.typed.emplace_back();
            setTypedValue(view.typed.back(), *view.given[i], attribute.getDataType());
            seen += context.borrowAttribute(sourceName(attribute), view.typed.back()) ? 1 : 0;
            context.borrowAttribute(targetName(attribute), view.typed.back());
        }
    }
    view.isWhole = seen == m_values.size();
    if (view.isWhole) {
        return;
    }
    for (const auto& [name, value] : m_values) {
        if (context.findValue(name) == nullptr) {
            view.typed.emplace_back(value);
            context.borrowAttribute(name, view.typed.back());
        }
    }
}

void zvObjectMapping::carry(const zvCfgObject& object) {
    const View& view = viewOf(object);
    bool isWhole = view.isWhole;
    m_attributes.reserve(view.given.size());
    for (std::size_t i = 0; i < view.given.size(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(static_cast<int>(i));
        const zvString* const given = view.given[i];
        const zvString& to = targetName(attribute);
        if (to.empty()) {
            isWhole = false;
        } else if (given != nullptr || attribute.isDefaultValueSpecified()) {
            m_attributes.push_back({sourceName(attribute), to,
                                    given == nullptr ? attribute.defaultValue() : *given,
                                    attribute.getDataType(), given == nullptr});
        }
    }
    if (!isWhole) {
        noteUnmapped();
    }
}

void zvObjectMapping::noteUnmapped() {
    std::vector<const zvString*> carried;  // the values that have a place, by their addresses
    carried.reserve(m_attributes.size());
    for (const Attribute& attribute : m_attributes) {
        carried.push_back(&attribute.value);
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
