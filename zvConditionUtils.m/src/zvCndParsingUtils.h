#ifndef ZV_CND_PARSING_UTILS_H
#define ZV_CND_PARSING_UTILS_H

#include "zvCndCondition.h"
#include "zvCndConditionList.h"
#include "zvCndConditionPrecedenceEnum.h"
#include "zvCndOperand.h"
#include "zvStringList.h"

/// Turns condition texts into conditions and back.
///
/// `{state} = 'RELEASED' AND ( {rev} > '2' OR NOT {owner} != 'admin' )`: a variable operand is an attribute's
/// name between braces, taken literally. A constant is a text between quotes, in which a backslash escapes
/// what follows; whether a quote or a backslash is escaped depends on the character before it alone, so that
/// no constant ends in a backslash. NOT binds more closely than AND, and AND more closely than OR. AND and OR
/// keep their children, and evaluate them, from right to left; a run of the same operator is one condition.
///
/// Every failure is logged and thrown as a zvException whose result has the message. The result of a failed
/// createConditionStructure has, as additional information, the decimal 0-based position in the given text at
/// which the fault was noticed: an open quote, brace or parenthesis, the beginning of an operator, or the
/// text's length.
class ZV_EXPORT zvCndParsingUtils {
public:
    zvCndParsingUtils();
    zvCndParsingUtils(const zvCndParsingUtils& other);
    virtual ~zvCndParsingUtils();

    zvCndParsingUtils& operator=(const zvCndParsingUtils& other);

    static zvCndCondition createConditionStructure(const zvString& text);
    /// Throws for a null handle and for a condition that is neither a comparison nor AND, OR or NOT.
    static zvString createConditionString(const zvCndCondition& condition);
    /// Compares the attribute named `lhs` with the constant `rhs`. Throws for an empty text and for a type
    /// that is not one of the six comparisons.
    static zvCndCondition createComparisonCondition(const zvCndConditionTypeEnum& type, const zvString& lhs,
                                                    const zvString& rhs);

protected:
    /// The longest run of operator characters from `position` on, which is moved to its last character;
    /// without any, an empty text and an unmoved position.
    static zvString findCndOperator(const zvString& text, int& position);
    /// None for a text that is no operator.
    static zvCndConditionTypeEnum convertToConditionType(const zvString& token);
    /// Throws for a text that is no logical operator.
    static zvCndConditionPrecedenceEnum getOperatorPrecedence(const zvString& token);
    /// The text as a String value.
    static zvCndOperand getCndOperand(zvString text, const zvOperandValueTypeEnum& valueType);

    /// Takes the operand `text`, which is empty then: as the left one when `leftText` is empty; otherwise to
    /// put the comparison of both on `conditions`, with `leftText` and `pendingType` cleared for the next
    /// one. Throws for an empty text and for a right operand without a pending type.
    static void processComparisonOperands(zvString& text, zvString& leftText,
                                          const zvOperandValueTypeEnum& valueType, zvCndOperand& leftOperand,
                                          zvCndConditionTypeEnum& pendingType,
                                          zvCndConditionList& conditions);
    /// Throws for an operand without text and for a type that is not one of the six comparisons.
    static zvCndCondition createComparisonCondition(const zvCndConditionTypeEnum& type,
                                                    const zvCndOperand& lhs, const zvCndOperand& rhs);

    /// Applies the waiting operators that bind more closely than `token`, which then waits on `operators`
    /// itself.
    static void processLogicalCndOperatorString(const zvString& token, zvStringList& operators,
                                                zvCndConditionList& conditions);
    /// Applies the waiting operators, back to the "(" that belongs to a closing parenthesis or back to the
    /// first. A failure leaves the operator that failed, or the "(" that is never closed, on top of
    /// `operators`.
    static void processStrOperatorStack(zvStringList& operators, zvCndConditionList& conditions,
                                        bool closingParenthesis);
    /// A new AND, OR or NOT without children; throws for any other text.
    static zvCndCondition createLogicalCondition(const zvString& token);
    /// Gives a new logical condition its children from the end of `conditions` and puts the result there: the
    /// condition itself, or the AND or OR on top when that has the same type. Throws when there are too few.
    static void setLogicalCndIntoCndStack(const zvCndCondition& condition, zvCndConditionList& conditions);
    static void createNsetLogicalCndIntoCndStack(const zvString& token, zvCndConditionList& conditions);

    /// The operand as it is written in a condition text; empty for an unknown value type.
    static zvString convertOperandToStringFormat(const zvCndOperand& operand);
};

#endif
