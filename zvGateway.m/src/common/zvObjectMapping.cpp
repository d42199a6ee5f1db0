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
        m_view.converted.clear();
        m_view.isWhole = false;
        m_view.context.reset();
        findGiven(m_view);
    }
    return m_view;
}

void zvObjectMapping::findGiven(View& view) const {
    const zvCfgObject& object = *view.object;
    view.given.assign(static_cast<std::size_t>(object.numAttributes()), nullptr);
    if (const zvNamePositions* const positions = object.attributePositions()) {
        for (const auto& [name, value] : m_values) {
            const int at = positions->find(name);
            if (at >= 0 && sourceName(*object.getAttribute(at)) == name) {
                view.given[static_cast<std::size_t>(at)] = &value;
            }
        }
        return;
    }
    for (std::size_t i = 0; i < view.given.size(); ++i) {
        view.given[i] = findValue(sourceName(*object.getAttribute(static_cast<int>(i))));
    }
}

// A rule may name an attribute as either system does: it is written once for both directions.
void zvObjectMapping::fillContext(View& view) const {
    zvCndContext& context = view.context.emplace();
    view.converted.reserve(view.given.size());  // they do not move any more
    const zvNamePositions* const positions = view.object->attributePositions();
    const std::size_t seen = positions != nullptr ? borrowByPosition(view, *positions) : borrowByName(view);
    view.isWhole = seen == m_values.size();
    if (view.isWhole) {
        return;
    }
    for (const auto& [name, value] : m_values) {
        context.borrowAttribute(name, value);  // unless an attribute has the name
    }
}

// Both return how many of the values the rule sees under their own names.
std::size_t zvObjectMapping::borrowByPosition(View& view, const zvNamePositions& positions) const {
    std::size_t seen = 0;
    view.compared.assign(view.given.size(), nullptr);
    for (std::size_t i = 0; i < view.given.size(); ++i) {
        if (view.given[i] != nullptr) {
            view.compared[i] = &valueToCompare(view, i);
            ++seen;
        }
    }
    view.context->borrowAttributes(positions, view.compared.data());
    return seen;
}

std::size_t zvObjectMapping::borrowByName(View& view) const {
    zvCndContext& context = *view.context;
    std::size_t seen = 0;
    context.reserve(static_cast<int>(2 * view.given.size()));
    for (std::size_t i = 0; i < view.given.size(); ++i) {
        if (view.given[i] != nullptr) {
            const zvCfgAttribute& attribute = *view.object->getAttribute(static_cast<int>(i));
            const zvValue& value = valueToCompare(view, i);
            seen += context.borrowAttribute(sourceName(attribute), value) ? 1 : 0;
            context.borrowAttribute(targetName(attribute), value);
        }
    }
    return seen;
}

const zvValue& zvObjectMapping::valueToCompare(View& view, std::size_t i) {
    const zvDataTypeEnum type = view.object->getAttribute(static_cast<int>(i))->getDataType();
    if (type == zvDataTypeString || type == zvDataTypeNone) {
        return *view.given[i];
    }
    zvValue& value = view.converted.emplace_back();
    setTypedValue(value, view.given[i]->text(), type);
    return value;
}

void zvObjectMapping::carry(const zvCfgObject& object) {
    const View& view = viewOf(object);
    bool isWhole = view.isWhole;
    m_attributes.reserve(view.given.size());
    for (std::size_t i = 0; i < view.given.size(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(static_cast<int>(i));
        const zvValue* const given = view.given[i];
        const zvString& to = targetName(attribute);
        if (to.empty()) {
            isWhole = false;
        } else if (given != nullptr || attribute.isDefaultValueSpecified()) {
            m_attributes.emplace_back(sourceName(attribute), to,
                                      given == nullptr ? attribute.defaultValue() : given->text(),
                                      attribute.getDataType(), given == nullptr);
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
        if (!std::binary_search(carried.begin(), carried.end(), &value.text(), std::less<>())) {
            m_unmapped.push_back(name);
        }
    }
}

const zvValue* zvObjectMapping::findValue(const zvString& name) const {
    const auto found = m_values.find(name);
    return name.empty() || found == m_values.end() ? nullptr : &found->second;
}

const zvString* zvObjectMapping::findText(const zvString& name) const {
    const zvValue* const value = findValue(name);
    return value == nullptr ? nullptr : &value->text();
}

const zvString& zvObjectMapping::sourceName(const zvCfgAttribute& attribute) const {
    return m_direction == Direction::localToRemote ? attribute.localName() : attribute.remoteName();
}

const zvString& zvObjectMapping::targetName(const zvCfgAttribute& attribute) const {
    return m_direction == Direction::localToRemote ? attribute.remoteName() : attribute.localName();
}
