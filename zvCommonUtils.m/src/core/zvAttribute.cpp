#include "zvAttribute.h"

zvAttribute::zvAttribute() = default;

zvAttribute::zvAttribute(const zvString& name, const zvValue& value) : m_strName(name), m_value(value) {}

zvAttribute::zvAttribute(const zvAttribute& other) = default;

zvAttribute::~zvAttribute() = default;

zvAttribute& zvAttribute::operator=(const zvAttribute& other) {
    zvKeptString name(other.m_strName);
    m_value = other.m_value;
    m_strName.swap(name);
    return *this;
}

void zvAttribute::copy(const zvAttribute& other) { *this = other; }

zvString zvAttribute::getName() const { return m_strName; }
void zvAttribute::setName(const zvString& name) { m_strName = name; }
zvValue zvAttribute::getValue() const { return m_value; }
void zvAttribute::setValue(const zvValue& value) { m_value = value; }
void zvAttribute::setValue(const zvString& text, zvDataTypeEnum type, int precision) {
    m_value.setValue(text, type, precision);
}
