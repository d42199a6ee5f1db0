#ifndef ZV_CND_PARSING_UTILS_H
#define ZV_CND_PARSING_UTILS_H

#include "zvCndCondition.h"
#include "zvCndConditionList.h"
#include "zvCndConditionPrecedenceEnum.h"
#include "zvCndOperand.h"
#include "zvStringList.h"

/// Parses condition strings to conditions and writes conditions as condition strings.
///
/// For example `{state} = 'RELEASED' AND ( {rev} > '2' OR NOT {owner} != 'admin' )`. A variable operand is an
/// attribute's name in braces, taken literally. A constant is a string in quotes, in which a backslash
/// escapes the next character; whether a quote or a backslash is escaped depends only on the character before
/// it, so that no constant can end in a backslash. The precedence is NOT, AND, OR, from the highest to the
/// lowest. AND and OR store and evaluate their children from right to left; a chain of the same operator is
/// one condition.
///
/// Every failure is logged and thrown as a zvException with the message in its result. For
/// createConditionStructure() the result's additional information is the 0-based position of the error in
/// decimal: that of an unclosed quote, brace or parenthesis, the start of an operator, or the length of the
/// string.
class ZV_EXPORT zvCndParsingUtils {
public:
    zvCndParsingUtils();
    zvCndParsingUtils(const zvCndParsingUtils& other);
    virtual ~zvCndParsingUtils();

    zvCndParsingUtils& operator=(const zvCndParsingUtils& other);

    static zvCndCondition createConditionStructure(const zvString& text);
    /// The condition string of a condition. Throws for null and for a condition that is neither a comparison
    /// nor AND, OR or NOT.
    static zvString createConditionString(const zvCndCondition& condition);
    /// A comparison of the attribute `lhs` with the constant `rhs`. Throws for an empty string and for a type
    /// that is not one of the six comparisons.
    static zvCndCondition createComparisonCondition(const zvCndConditionTypeEnum& type, const zvString& lhs,
                                                    const zvString& rhs);

protected:
    /// The longest run of operator characters from `position` on, which is advanced to its last character;
    /// empty, with `position` unchanged, if there is none.
    static zvString findCndOperator(const zvString& text, int& position);
    /// The condition type of an operator; zvCndConditionNone for any other string.
    static zvCndConditionTypeEnum convertToConditionType(const zvString& token);
    /// The precedence of a logical operator; throws for any other string.
    static zvCndConditionPrecedenceEnum getOperatorPrecedence(const zvString& token);
    /// An operand with `text` as a String value.
    static zvCndOperand getCndOperand(zvString text, const zvOperandValueTypeEnum& valueType);

    /// Consumes the operand `text`, which is empty afterwards. If `leftText` is empty, it becomes the left
    /// operand; otherwise the comparison of both is pushed on `conditions`, and `leftText` and `pendingType`
    /// are reset. Throws for an empty string and for a right operand without a pending type.
    static void processComparisonOperands(zvString& text, zvString& leftText,
                                          const zvOperandValueTypeEnum& valueType, zvCndOperand& leftOperand,
                                          zvCndConditionTypeEnum& pendingType,
                                          zvCndConditionList& conditions);
    /// Throws for an empty operand and for a type that is not one of the six comparisons.
    static zvCndCondition createComparisonCondition(const zvCndConditionTypeEnum& type,
                                                    const zvCndOperand& lhs, const zvCndOperand& rhs);

    /// Pops and applies the operators with a higher precedence than `token`, which is then pushed on
    /// `operators`.
    static void processLogicalCndOperatorString(const zvString& token, zvStringList& operators,
                                                zvCndConditionList& conditions);
    /// Pops and applies the operators, down to the matching "(" for a closing parenthesis, otherwise all. A
    /// failure leaves the operator that failed, or the unclosed "(", on top of `operators`.
    static void processStrOperatorStack(zvStringList& operators, zvCndConditionList& conditions,
                                        bool closingParenthesis);
    /// A new AND, OR or NOT without children; throws for any other string.
    static zvCndCondition createLogicalCondition(const zvString& token);
    /// Pops the children of a new logical condition from `conditions` and pushes the result: the condition
    /// itself, or the AND or OR on top if that has the same type. Throws if there are too few.
    static void setLogicalCndIntoCndStack(const zvCndCondition& condition, zvCndConditionList& conditions);
    static void createNsetLogicalCndIntoCndStack(const zvString& token, zvCndConditionList& conditions);

    /// The operand in the syntax of condition strings; empty for an unknown value type.
    static zvString convertOperandToStringFormat(const zvCndOperand& operand);
};

#endif
