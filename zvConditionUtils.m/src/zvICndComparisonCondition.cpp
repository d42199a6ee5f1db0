#include "zvICndComparisonCondition.h"

#include <utility>

#include "zvCndContext.h"

namespace {

// An operand that is no text, or an empty one.
[[gnu::noinline]] const zvValue* resolveOther(const zvCndOperand& operand, const zvCndContext& context) {
    switch (operand.getValueType()) {
        case zvOperandConstant:
            return operand.hasText() ? &operand.value() : nullptr;
        case zvOperandVariable:
            return context.findValue(operand.value().getValue());
        default:
            return nullptr;
    }
}

}  // namespace

zvICndComparisonCondition::zvICndComparisonCondition(zvCndConditionTypeEnum type) : zvICndCondition(type) {}

zvICndComparisonCondition::zvICndComparisonCondition(zvCndConditionTypeEnum type, zvCndOperand&& lhs,
                                                     zvCndOperand&& rhs)
    : zvICndCondition(type), m_lhsOperand(std::move(lhs)), m_rhsOperand(std::move(rhs)) {}

zvICndComparisonCondition::zvICndComparisonCondition(const zvICndComparisonCondition& other) = default;

zvICndComparisonCondition::~zvICndComparisonCondition() = default;

zvICndComparisonCondition& zvICndComparisonCondition::operator=(const zvICndComparisonCondition&) = default;

// The operand's value, borrowed from operand or context; null for a missing operand. The usual ones come
// first, and read few lines of the memory, which the rules of a configuration fill.
const zvValue* zvICndComparisonCondition::resolve(const zvCndOperand& operand, const zvCndContext& context) {
    const zvValue& value = operand.value();
    return value.remembers(zvValue::hashOfText)       ? context.findValue(value.text(), value.textHash())
           : value.remembers(zvValue::textOfConstant) ? &value
                                                      : resolveOther(operand, context);
}

zvICndComparisonCondition::Values zvICndComparisonCondition::values(const zvCndContext& context) const {
    const zvValue* const left = resolve(m_lhsOperand, context);
    const zvValue* const right = left == nullptr ? nullptr : resolve(m_rhsOperand, context);
    return right == nullptr ? Values{nullptr, nullptr} : Values{left, right};
}

void zvICndComparisonCondition::setLHSOperand(const zvCndOperand& operand) { m_lhsOperand = operand; }

void zvICndComparisonCondition::setRHSOperand(const zvCndOperand& operand) { m_rhsOperand = operand; }

bool zvICndComparisonCondition::getOperandValue(const zvCndOperand& operand, const zvCndContext& context,
                                                zvValue& out) const {
    const zvValue* const value = resolve(operand, context);
    if (value != nullptr) {
        out = *value;
    } else if (operand.getValueType() == zvOperandConstant) {
        out = operand.value();
    } else if (operand.getValueType() == zvOperandVariable) {
        out = zvValue();
    }
    return value != nullptr;
}

bool zvICndComparisonCondition::getLHSOperandValue(const zvCndContext& context, zvValue& out) const {
    return getOperandValue(m_lhsOperand, context, out);
}

bool zvICndComparisonCondition::getRHSOperandValue(const zvCndContext& context, zvValue& out) const {
    return getOperandValue(m_rhsOperand, context, out);
}
