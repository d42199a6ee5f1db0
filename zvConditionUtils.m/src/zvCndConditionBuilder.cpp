#include "zvCndConditionBuilder.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "zvCndConditionFactory.h"
#include "zvCndOperator.h"

namespace zvCndConditionBuilder {

namespace {

using zvCndParsing::logger;

zvCndCondition pop(zvCndConditionList& conditions, const char* messageWhenEmpty) {
    if (conditions.empty()) {
        logger.raise(messageWhenEmpty);
    }
    zvCndCondition last = conditions.back();
    conditions.pop();
    return last;
}

// How AND and OR differ when they are given their children from the stack.
struct Join {
    zvCndConditionTypeEnum type;
    const char* nothingToExtendWith;
    const char* onlyOneCondition;
};

constexpr Join joins[] = {
    {zvCndConditionAnd, "Empty condition stack,\tsetting child elements of AND condition failed",
     "Empty condition stack,\tonly one condition added to AND conditoin"},
    {zvCndConditionOr, "Empty condition stack,\tsetting child elements of OR condition failed",
     "Empty condition stack, only one condition added to OR condition"},
};

const Join* joinOf(zvCndConditionTypeEnum type) {
    const auto* const found = std::find_if(std::begin(joins), std::end(joins),
                                           [type](const Join& join) { return join.type == type; });
    return found == std::end(joins) ? nullptr : found;
}

zvICndListCondition& listConditionOf(const zvCndCondition& condition) {
    return *static_cast<zvICndListCondition*>(condition.operator->());
}

// When the last condition has the operator's own type it begins a run, which takes in what stands before it.
bool extendRun(const Join& join, zvCndConditionList& conditions) {
    const zvCndCondition run = conditions.back();
    if (run.IsNull() || run->getConditionType() != join.type) {
        return false;
    }
    conditions.pop();
    listConditionOf(run).addCondition(pop(conditions, join.nothingToExtendWith));
    return conditions.addCondition(run);
}

void beginRun(const Join& join, const zvCndCondition& condition, zvCndConditionList& conditions) {
    zvICndListCondition& run = listConditionOf(condition);
    run.addCondition(pop(conditions, join.onlyOneCondition));
    run.addCondition(pop(conditions, join.onlyOneCondition));
    conditions.addCondition(condition);
}

}  // namespace

void requireComparison(zvCndConditionTypeEnum type, bool hasOperands, const char* messageWhenUndefined) {
    if (type == zvCndConditionNone || !hasOperands) {
        logger.raise(messageWhenUndefined);
    }
    const zvCndOperator* const made = zvCndOperator::of(type);
    if (made == nullptr || !made->isComparison()) {
        logger.raise("Invalid comparision condition operator, check the condition string syntax");
    }
}

void requireComparison(zvCndConditionTypeEnum type, const zvCndOperand& lhs, const zvCndOperand& rhs) {
    requireComparison(type, lhs.hasText() && rhs.hasText(),
                      "Empty Operand or Undefined condition type, check condition string syntax");
}

void addOperand(zvString&& text, zvOperandValueTypeEnum valueType, zvString& leftText,
                zvCndOperand& leftOperand, zvCndConditionTypeEnum& pendingType,
                zvCndConditionList& conditions) {
    if (leftText.empty()) {
        if (text.empty()) {
            logger.raise("LHS operand string is empty");
        }
        leftText = text;
        leftOperand.setText(std::move(text), valueType);
        return;
    }
    if (pendingType == zvCndConditionNone) {
        logger.raise("Comparison condition operator not found");
    }
    if (text.empty()) {
        logger.raise("RHS operand string is empty");
    }
    zvCndOperand rightOperand(std::move(text), valueType);
    requireComparison(pendingType, leftOperand, rightOperand);
    const zvCndComparisonCondition comparison = zvCndConditionFactory::createComparisonCondition(
        pendingType, std::move(leftOperand), std::move(rightOperand));
    if (!conditions.addCondition(comparison)) {
        logger.raise("NULL comparison condition");
    }
    leftText.reset();
    pendingType = zvCndConditionNone;
}

zvCndCondition createLogicalCondition(zvCndConditionTypeEnum type) {
    switch (type) {
        case zvCndConditionAnd:
            return zvCndConditionFactory::getCondition(zvCndConditionFactory::createAndCondition());
        case zvCndConditionOr:
            return zvCndConditionFactory::getCondition(zvCndConditionFactory::createOrCondition());
        case zvCndConditionNot:
            return zvCndConditionFactory::getCondition(zvCndConditionFactory::createNotCondition());
        default:
            logger.raise("Invalid logical condition operator");
    }
}

void setChildren(const zvCndCondition& condition, zvCndConditionList& conditions) {
    if (condition.IsNull() || conditions.empty()) {
        logger.raise("Null Logical Condition or Empty condition stack");
    }
    const Join* const join = joinOf(condition->getConditionType());
    if (condition->getConditionType() == zvCndConditionNot) {
        zvCndConditionFactory::getNotCondition(condition)->setCondition(pop(conditions, ""));
        conditions.addCondition(condition);
    } else if (join == nullptr) {
        logger.raise("zvCndParsingUtils::setLogicalCndIntoCndStack -\tInvalid logical condition received");
    } else if (!extendRun(*join, conditions)) {
        beginRun(*join, condition, conditions);
    }
}

// A run on top takes the operator in; making a condition for it, to be thrown away, would be for nothing.
void applyOperator(zvCndConditionTypeEnum type, zvCndConditionList& conditions) {
    const Join* const join = joinOf(type);
    if (join == nullptr || !extendRun(*join, conditions)) {
        setChildren(createLogicalCondition(type), conditions);
    }
}

}  // namespace zvCndConditionBuilder
