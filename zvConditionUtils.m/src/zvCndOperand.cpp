#include "zvCndOperand.h"

#include <utility>

zvCndOperand::zvCndOperand() = default;

zvCndOperand::zvCndOperand(zvString&& text, zvOperandValueTypeEnum valueType)
    : m_value(std::move(text)), m_valueType(valueType) {
    remember();
}

zvCndOperand::zvCndOperand(const zvCndOperand& other) = default;

zvCndOperand::zvCndOperand(zvCndOperand&& other) noexcept = default;

zvCndOperand::~zvCndOperand() = default;

zvCndOperand& zvCndOperand::operator=(const zvCndOperand& other) = default;

void zvCndOperand::setValue(const zvValue& value) {
    m_value = value;
    remember();
}

void zvCndOperand::setValueType(const zvOperandValueTypeEnum& valueType) {
    m_valueType = valueType;
    remember();
}

void zvCndOperand::setText(zvString&& text, zvOperandValueTypeEnum valueType) {
    m_value.setStrValue(std::move(text));
    m_valueType = valueType;
    remember();
}

// What every evaluation asks for.
void zvCndOperand::remember() {
    if (m_valueType == zvOperandVariable) {
        m_value.rememberName();
    } else if (m_valueType == zvOperandConstant) {
        m_value.rememberConstant();
    } else {
        m_value.forget();
    }
}

// Short circuit: the text forms of numbers, dates and booleans are never empty.
bool zvCndOperand::hasText() const {
    switch (m_value.getDataType()) {
        case zvDataTypeInteger:
        case zvDataTypeFloat:
        case zvDataTypeDate:
        case zvDataTypeBoolean:
            return true;
        case zvDataTypeString:
            return !m_value.text().empty();
        default:
            return false;
    }
}
