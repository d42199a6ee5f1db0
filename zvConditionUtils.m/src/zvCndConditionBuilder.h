#ifndef ZV_CND_CONDITION_BUILDER_H
#define ZV_CND_CONDITION_BUILDER_H

#include "zvCndCondition.h"
#include "zvCndConditionList.h"
#include "zvCndConditionPrecedenceEnum.h"
#include "zvCndOperand.h"
#include "zvCndParsingLog.h"

/// Builds a condition tree from operands and operators in the order of their text. `conditions` is a stack of
/// complete conditions, from which an operator takes its children. Every failure is logged and thrown as a
/// zvException.
namespace zvCndConditionBuilder {

/// Throws `messageWhenUndefined` for the type None and for missing operands, and another message for a type
/// that is not one of the six comparisons.
void requireComparison(zvCndConditionTypeEnum type, bool hasOperands, const char* messageWhenUndefined);
/// The same for operands, each of which needs a text.
void requireComparison(zvCndConditionTypeEnum type, const zvCndOperand& lhs, const zvCndOperand& rhs);

/// Takes `text` as the left operand when `leftText` is empty. Otherwise it is the right one: the comparison
/// of both goes on the stack, and `leftText` and `pendingType` are cleared for the next one.
void addOperand(zvString&& text, zvOperandValueTypeEnum valueType, zvString& leftText,
                zvCndOperand& leftOperand, zvCndConditionTypeEnum& pendingType,
                zvCndConditionList& conditions);

/// A new AND, OR or NOT without children.
zvCndCondition createLogicalCondition(zvCndConditionTypeEnum type);
/// Gives a new logical condition its children from the stack and puts the result there: the condition itself,
/// or the AND or OR on top when that has the same type.
void setChildren(const zvCndCondition& condition, zvCndConditionList& conditions);
/// The same for a condition that is created when it is needed.
void applyOperator(zvCndConditionTypeEnum type, zvCndConditionList& conditions);

/// Applies the waiting operators that bind more closely than `precedence`. A failure leaves the one that
/// failed.
template <class Operators>
void applyCloserOperators(zvCndConditionPrecedenceEnum precedence, Operators& waiting,
                          zvCndConditionList& conditions) {
    while (!waiting.empty() && !waiting.isParenthesis() && waiting.precedence() > precedence) {
        waiting.apply(conditions);
        waiting.pop();
    }
}

/// Applies the waiting operators back to an opening parenthesis, which has to be there for a closing one
/// only.
template <class Operators>
void applyOperators(Operators& waiting, zvCndConditionList& conditions, bool closingParenthesis) {
    while (!waiting.empty() && !waiting.isParenthesis()) {
        waiting.apply(conditions);
        waiting.pop();
    }
    const bool isOpen = !waiting.empty();
    if (isOpen != closingParenthesis) {
        zvCndParsing::logger.raise(isOpen ? "Error in matching parenthesis, closing parenthesis missing"
                                          : "Error in matching parenthesis, opening parenthesis missing");
    }
    if (isOpen) {
        waiting.pop();
    }
}

}  // namespace zvCndConditionBuilder

#endif
