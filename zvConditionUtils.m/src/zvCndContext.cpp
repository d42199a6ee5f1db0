#include "zvCndContext.h"

zvCndContext::zvCndContext() = default;

zvCndContext::zvCndContext(const zvCndContext& other) = default;

zvCndContext::~zvCndContext() = default;

zvCndContext& zvCndContext::operator=(const zvCndContext& other) = default;

bool zvCndContext::addAttribute(zvAttribute& attribute) {
    const zvString name = attribute.getName();
    return !name.empty() && m_attributes.addAttr(name, attribute);
}

bool zvCndContext::getAttribute(const zvString& name, zvAttribute& attribute) const {
    return !name.empty() && m_attributes.getAttr(name, attribute);
}

const zvValue* zvCndContext::findValue(const zvString& name) const {
    const zvAttribute* const attribute = name.empty() ? nullptr : m_attributes.findAttr(name);
    return attribute == nullptr ? nullptr : &attribute->value();
}
