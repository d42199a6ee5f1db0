#include "zvCndContext.h"

#include "zvStringToAttrMapImpl.h"

zvCndContext::zvCndContext() = default;

zvCndContext::zvCndContext(const zvCndContext& other) = default;

zvCndContext::~zvCndContext() = default;

zvCndContext& zvCndContext::operator=(const zvCndContext& other) = default;

bool zvCndContext::addAttribute(zvAttribute& attribute) {
    const zvString name = attribute.getName();
    const bool isNew = !name.empty() && findValue(name) == nullptr;
    if (isNew) {
        m_attributes.m_pImpl->add(name, attribute);
    }
    return isNew;
}

bool zvCndContext::setAttribute(const zvString& name, const zvString& text, zvDataTypeEnum type) {
    constexpr int precision = 3;
    if (zvAttribute* const present = m_attributes.m_pImpl->find(name)) {
        present->setValue(text, type, precision);
        return true;
    }
    zvAttribute attribute(name, zvValue(text, type, precision));
    return addAttribute(attribute);
}

bool zvCndContext::borrowAttribute(const zvString& name, const zvValue& value) {
    return !name.empty() && m_attributes.m_pImpl->borrow(name, value);
}

void zvCndContext::borrowAttributes(const zvNamePositions& names, const zvValue* const* values) {
    m_attributes.m_pImpl->borrow(names, values);
}

void zvCndContext::reserve(int count) { m_attributes.m_pImpl->reserve(count); }

bool zvCndContext::getAttribute(const zvString& name, zvAttribute& attribute) const {
    const zvValue* const value = findValue(name);
    if (value != nullptr) {
        attribute = zvAttribute(name, *value);
    }
    return value != nullptr;
}

const zvValue* zvCndContext::findValue(const zvString& name) const {
    return findValue(name, zvStringUnits::hashOf(name));
}

// An empty name is never added.
const zvValue* zvCndContext::findValue(const zvString& name, std::uint32_t hash) const {
    return m_attributes.m_pImpl->findValue(name, hash);
}
