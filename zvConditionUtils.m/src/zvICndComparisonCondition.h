#ifndef ZV_I_CND_COMPARISON_CONDITION_H
#define ZV_I_CND_COMPARISON_CONDITION_H

#include <utility>

#include "zvCndCondition.h"
#include "zvCndOperand.h"

/// The base of the six comparisons: two operands, compared with an operator of zvValue, and so as the type of
/// the left operand.
///
/// An operand is missing if it is a constant with an empty text form or a variable that the context does not
/// contain. A comparison with a missing operand is false, even NotEquals.
class ZV_EXPORT zvICndComparisonCondition : public zvICndCondition {
public:
    zvICndComparisonCondition(const zvICndComparisonCondition& other);
    zvICndComparisonCondition& operator=(const zvICndComparisonCondition& other);
    ~zvICndComparisonCondition() override;

    zvCndOperand getLHSOperand() const { return m_lhsOperand; }
    zvCndOperand getRHSOperand() const { return m_rhsOperand; }
    void setLHSOperand(const zvCndOperand& operand);
    void setRHSOperand(const zvCndOperand& operand);

    /// @name The operands
    /// By reference, owned by the condition.
    /// @{
    const zvCndOperand& lhsOperand() const { return m_lhsOperand; }
    const zvCndOperand& rhsOperand() const { return m_rhsOperand; }
    /// @}

protected:
    explicit zvICndComparisonCondition(zvCndConditionTypeEnum type = zvCndConditionNone);
    zvICndComparisonCondition(zvCndConditionTypeEnum type, zvCndOperand&& lhs, zvCndOperand&& rhs);

    /// Copies the operand's value into `out`. False for a missing operand, with `out` set to the empty
    /// constant, or to the default value for a missing attribute. An operand of an unknown type is missing
    /// and leaves `out` unchanged.
    bool getOperandValue(const zvCndOperand& operand, const zvCndContext& context, zvValue& out) const;
    bool getLHSOperandValue(const zvCndContext& context, zvValue& out) const;
    bool getRHSOperandValue(const zvCndContext& context, zvValue& out) const;

    /// Both null if one is missing.
    struct Values {
        const zvValue* left;
        const zvValue* right;
    };
    /// The operands' values, borrowed from the condition or from the context.
    Values values(const zvCndContext& context) const;

private:
    static const zvValue* resolve(const zvCndOperand& operand, const zvCndContext& context);

    zvCndOperand m_lhsOperand;
    zvCndOperand m_rhsOperand;
};

/// The comparison of one condition type.
template <zvCndConditionTypeEnum Type, bool (zvValue::*Operator)(const zvValue&) const>
class ZV_EXPORT zvICndComparisonOfType : public zvICndComparisonCondition {
public:
    static constexpr zvCndConditionTypeEnum type = Type;

    zvICndComparisonOfType() : zvICndComparisonCondition(Type) {}
    zvICndComparisonOfType(zvCndOperand&& lhs, zvCndOperand&& rhs)
        : zvICndComparisonCondition(Type, std::move(lhs), std::move(rhs)) {}

    bool evaluate(const zvCndContext& context) const override {
        const Values compared = values(context);
        return compared.left != nullptr && (compared.left->*Operator)(*compared.right);
    }
};

// clang-format mistakes "operator<" for the start of a template argument list.
// clang-format off
using zvICndEqualsCondition = zvICndComparisonOfType<zvCndConditionEquals, &zvValue::operator==>;
using zvICndNotEqualsCondition = zvICndComparisonOfType<zvCndConditionNotEquals, &zvValue::operator!=>;
using zvICndLessThanCondition = zvICndComparisonOfType<zvCndConditionLessThan, (&zvValue::operator<)>;
using zvICndLessThanEqualsCondition =
    zvICndComparisonOfType<zvCndConditionLessThanEquals, (&zvValue::operator<=)>;
using zvICndGreaterThanCondition = zvICndComparisonOfType<zvCndConditionGreaterThan, (&zvValue::operator>)>;
using zvICndGreaterThanEqualsCondition =
    zvICndComparisonOfType<zvCndConditionGreaterThanEquals, (&zvValue::operator>=)>;
// clang-format on

using zvCndComparisonCondition = zvCndHandle<zvICndComparisonCondition>;
using zvCndEqualsCondition = zvCndHandle<zvICndEqualsCondition>;
using zvCndNotEqualsCondition = zvCndHandle<zvICndNotEqualsCondition>;
using zvCndLessThanCondition = zvCndHandle<zvICndLessThanCondition>;
using zvCndLessThanEqualsCondition = zvCndHandle<zvICndLessThanEqualsCondition>;
using zvCndGreaterThanCondition = zvCndHandle<zvICndGreaterThanCondition>;
using zvCndGreaterThanEqualsCondition = zvCndHandle<zvICndGreaterThanEqualsCondition>;

#endif
