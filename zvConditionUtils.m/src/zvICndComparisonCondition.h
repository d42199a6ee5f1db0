#ifndef ZV_I_CND_COMPARISON_CONDITION_H
#define ZV_I_CND_COMPARISON_CONDITION_H

#include "zvCndCondition.h"
#include "zvCndOperand.h"

/// The base of the six comparisons: two operands, compared with the zvValue operator of the condition's type,
/// and so as the type of the left operand.
///
/// An operand is missing if it is a constant with an empty text form or a variable that the context does not
/// contain. A comparison with a missing operand is false, even NotEquals.
class ZV_EXPORT zvICndComparisonCondition : public zvICndCondition {
public:
    ~zvICndComparisonCondition() override;

    bool evaluate(const zvCndContext& context) const override;

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
    explicit zvICndComparisonCondition(zvCndConditionTypeEnum type);
    zvICndComparisonCondition(zvCndConditionTypeEnum type, zvCndOperand&& lhs, zvCndOperand&& rhs);

    /// Copies the operand's value into `out`. False for a missing operand, with `out` set to the empty
    /// constant, or to the default value for a missing attribute. An operand of an unknown type is missing
    /// and leaves `out` unchanged.
    bool getOperandValue(const zvCndOperand& operand, const zvCndContext& context, zvValue& out) const;
    bool getLHSOperandValue(const zvCndContext& context, zvValue& out) const;
    bool getRHSOperandValue(const zvCndContext& context, zvValue& out) const;

private:
    zvCndOperand m_lhsOperand;
    zvCndOperand m_rhsOperand;
};

using zvICndEqualsCondition = zvICndOfType<zvICndComparisonCondition, zvCndConditionEquals>;
using zvICndNotEqualsCondition = zvICndOfType<zvICndComparisonCondition, zvCndConditionNotEquals>;
using zvICndLessThanCondition = zvICndOfType<zvICndComparisonCondition, zvCndConditionLessThan>;
using zvICndLessThanEqualsCondition = zvICndOfType<zvICndComparisonCondition, zvCndConditionLessThanEquals>;
using zvICndGreaterThanCondition = zvICndOfType<zvICndComparisonCondition, zvCndConditionGreaterThan>;
using zvICndGreaterThanEqualsCondition =
    zvICndOfType<zvICndComparisonCondition, zvCndConditionGreaterThanEquals>;

using zvCndComparisonCondition = zvCndHandle<zvICndComparisonCondition>;
using zvCndEqualsCondition = zvCndHandle<zvICndEqualsCondition>;
using zvCndNotEqualsCondition = zvCndHandle<zvICndNotEqualsCondition>;
using zvCndLessThanCondition = zvCndHandle<zvICndLessThanCondition>;
using zvCndLessThanEqualsCondition = zvCndHandle<zvICndLessThanEqualsCondition>;
using zvCndGreaterThanCondition = zvCndHandle<zvICndGreaterThanCondition>;
using zvCndGreaterThanEqualsCondition = zvCndHandle<zvICndGreaterThanEqualsCondition>;

#endif
