#include "zvCndParsingUtils.h"

#include <utility>

#include "zvCndConditionBuilder.h"
#include "zvCndConditionFactory.h"
#include "zvCndConditionReader.h"
#include "zvCndConditionWriter.h"
#include "zvCndOperator.h"
#include "zvCndParsingLog.h"

namespace {

using zvCndParsing::logger;

zvCndConditionTypeEnum typeOf(const zvString& token) {
    const zvCndOperator* const made = zvCndOperator::of(token);
    return made == nullptr ? zvCndConditionNone : made->type;
}

zvCndConditionPrecedenceEnum precedenceOf(const zvString& token) {
    const zvCndOperator* const made = zvCndOperator::of(token);
    if (made == nullptr || made->isComparison()) {
        logger.raise("Failed to get precedence value, Invalid logical condition operator");
    }
    return made->precedence;
}

// The waiting operators as texts.
class WaitingTokens {
public:
    explicit WaitingTokens(zvStringList& tokens) : m_tokens(tokens) {}

    bool empty() const { return m_tokens.empty(); }
    bool isParenthesis() const { return "(" == m_tokens.back(); }
    zvCndConditionPrecedenceEnum precedence() const { return precedenceOf(m_tokens.back()); }
    void apply(zvCndConditionList& conditions) const {
        zvCndConditionBuilder::applyOperator(typeOf(m_tokens.back()), conditions);
    }
    void pop() { m_tokens.pop(); }

private:
    zvStringList& m_tokens;
};

}  // namespace

zvCndParsingUtils::zvCndParsingUtils() = default;

zvCndParsingUtils::zvCndParsingUtils(const zvCndParsingUtils& other) = default;

zvCndParsingUtils::~zvCndParsingUtils() = default;

zvCndParsingUtils& zvCndParsingUtils::operator=(const zvCndParsingUtils&) = default;

zvCndCondition zvCndParsingUtils::createConditionStructure(const zvString& text) {
    return zvCndConditionReader::read(text).condition;
}

zvString zvCndParsingUtils::findCndOperator(const zvString& text, int& position) {
    const int end = zvCndConditionReader::operatorEnd(text, position);
    zvString token = text.substr(position, end - position);
    if (!token.empty()) {
        position = end - 1;
    }
    return token;
}

zvCndConditionTypeEnum zvCndParsingUtils::convertToConditionType(const zvString& token) {
    return typeOf(token);
}

zvCndConditionPrecedenceEnum zvCndParsingUtils::getOperatorPrecedence(const zvString& token) {
    return precedenceOf(token);
}

zvCndOperand zvCndParsingUtils::getCndOperand(zvString text, const zvOperandValueTypeEnum& valueType) {
    return {std::move(text), valueType};
}

void zvCndParsingUtils::processComparisonOperands(zvString& text, zvString& leftText,
                                                  const zvOperandValueTypeEnum& valueType,
                                                  zvCndOperand& leftOperand,
                                                  zvCndConditionTypeEnum& pendingType,
                                                  zvCndConditionList& conditions) {
    zvCndConditionBuilder::addOperand(std::move(text), valueType, leftText, leftOperand, pendingType,
                                      conditions);
}

zvCndCondition zvCndParsingUtils::createComparisonCondition(const zvCndConditionTypeEnum& type,
                                                            const zvCndOperand& lhs,
                                                            const zvCndOperand& rhs) {
    zvCndConditionBuilder::requireComparison(type, lhs, rhs);
    return zvCndConditionFactory::getCondition(
        zvCndConditionFactory::createComparisonCondition(type, zvCndOperand(lhs), zvCndOperand(rhs)));
}

zvCndCondition zvCndParsingUtils::createComparisonCondition(const zvCndConditionTypeEnum& type,
                                                            const zvString& lhs, const zvString& rhs) {
    zvCndConditionBuilder::requireComparison(
        type, !lhs.empty() && !rhs.empty(),
        "Empty Operand string or Undefined condition type, check condition string syntax");
    return createComparisonCondition(type, getCndOperand(lhs, zvOperandVariable),
                                     getCndOperand(rhs, zvOperandConstant));
}

void zvCndParsingUtils::processLogicalCndOperatorString(const zvString& token, zvStringList& operators,
                                                        zvCndConditionList& conditions) {
    WaitingTokens waiting(operators);
    zvCndConditionBuilder::applyCloserOperators(precedenceOf(token), waiting, conditions);
    operators.addString(token);
}

void zvCndParsingUtils::processStrOperatorStack(zvStringList& operators, zvCndConditionList& conditions,
                                                bool closingParenthesis) {
    WaitingTokens waiting(operators);
    zvCndConditionBuilder::applyOperators(waiting, conditions, closingParenthesis);
}

zvCndCondition zvCndParsingUtils::createLogicalCondition(const zvString& token) {
    return zvCndConditionBuilder::createLogicalCondition(typeOf(token));
}

void zvCndParsingUtils::setLogicalCndIntoCndStack(const zvCndCondition& condition,
                                                  zvCndConditionList& conditions) {
    zvCndConditionBuilder::setChildren(condition, conditions);
}

void zvCndParsingUtils::createNsetLogicalCndIntoCndStack(const zvString& token,
                                                         zvCndConditionList& conditions) {
    zvCndConditionBuilder::applyOperator(typeOf(token), conditions);
}

zvString zvCndParsingUtils::convertOperandToStringFormat(const zvCndOperand& operand) {
    return zvCndConditionWriter::textOf(operand);
}

zvString zvCndParsingUtils::createConditionString(const zvCndCondition& condition) {
    return zvCndConditionWriter::textOf(condition);
}
