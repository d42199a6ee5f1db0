#ifndef ZV_CND_OPERAND_H
#define ZV_CND_OPERAND_H

#include "zvValue.h"

enum zvOperandValueTypeEnum : int {
    /// The value itself is compared.
    zvOperandConstant = 0,
    /// The value is the name of the attribute whose value is compared.
    zvOperandVariable = 1
};

/// An operand of a comparison. The default is a constant without a value.
class ZV_EXPORT zvCndOperand {
public:
    zvCndOperand();
    /// An operand with the String value `text`.
    zvCndOperand(zvString&& text, zvOperandValueTypeEnum valueType);
    zvCndOperand(const zvCndOperand& other);
    zvCndOperand(zvCndOperand&& other) noexcept;
    virtual ~zvCndOperand();

    zvCndOperand& operator=(const zvCndOperand& other);

    zvValue getValue() const { return m_value; }
    void setValue(const zvValue& value);
    zvOperandValueTypeEnum getValueType() const { return m_valueType; }
    void setValueType(const zvOperandValueTypeEnum& valueType);

    /// Replaces the value with the String `text`.
    void setText(zvString&& text, zvOperandValueTypeEnum valueType);

    /// The value by reference, owned by the operand.
    const zvValue& value() const { return m_value; }
    /// Whether the value's text form is not empty.
    bool hasText() const;

private:
    void remember();

    zvValue m_value;
    zvOperandValueTypeEnum m_valueType = zvOperandConstant;
};

#endif
