#include "zvCndParsingUtils.h"

#include <algorithm>
#include <cwctype>
#include <iterator>
#include <utility>
#include <vector>

#include "zvCndConditionFactory.h"
#include "zvCndOperator.h"
#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvConditionUtils.m/src/zvCndParsingUtils");

constexpr char undefinedOperandMessage[] =
    "Empty Operand or Undefined condition type, check condition string syntax";

constexpr char braceNotOpened[] = "2.Variable Operand syntax error";

bool isOperatorUnit(wchar16 unit) {
    switch (unit) {
        case u'=':
        case u'!':
        case u'<':
        case u'>':
        case u'A':
        case u'N':
        case u'D':
        case u'O':
        case u'R':
        case u'T':
            return true;
        default:
            return false;
    }
}

// Behind the longest run of operator characters from `begin` on.
int operatorEnd(const zvString& text, int begin) {
    int end = begin;
    while (end >= 0 && end < text.size() && isOperatorUnit(text[end])) {
        ++end;
    }
    return end;
}

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

zvCndCondition pop(zvCndConditionList& conditions, const char* messageWhenEmpty) {
    if (conditions.empty()) {
        logger.raise(messageWhenEmpty);
    }
    zvCndCondition last = conditions.back();
    conditions.pop();
    return last;
}

zvCndCondition createLogical(zvCndConditionTypeEnum type) {
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
        setChildren(createLogical(type), conditions);
    }
}

void requireComparison(zvCndConditionTypeEnum type, bool hasOperands, const char* messageWhenUndefined) {
    if (type == zvCndConditionNone || !hasOperands) {
        logger.raise(messageWhenUndefined);
    }
    const zvCndOperator* const made = zvCndOperator::of(type);
    if (made == nullptr || !made->isComparison()) {
        logger.raise("Invalid comparision condition operator, check the condition string syntax");
    }
}

// The waiting operators, an opening parenthesis being none, and where they stand in the text.
class WaitingOperators {
public:
    WaitingOperators() { m_waiting.reserve(usualSize); }

    bool empty() const { return m_waiting.empty(); }
    bool isParenthesis() const { return m_waiting.back().made == nullptr; }
    int position() const { return m_waiting.back().position; }
    zvCndConditionPrecedenceEnum precedence() const { return m_waiting.back().made->precedence; }
    void apply(zvCndConditionList& conditions) const {
        applyOperator(m_waiting.back().made->type, conditions);
    }
    void push(const zvCndOperator* made, int position) { m_waiting.push_back({made, position}); }
    void pop() { m_waiting.pop_back(); }

private:
    static constexpr std::size_t usualSize = 16;

    struct Waiting {
        const zvCndOperator* made;
        int position;
    };

    std::vector<Waiting> m_waiting;
};

// The waiting operators as texts.
class WaitingTokens {
public:
    explicit WaitingTokens(zvStringList& tokens) : m_tokens(tokens) {}

    bool empty() const { return m_tokens.empty(); }
    bool isParenthesis() const { return "(" == m_tokens.back(); }
    zvCndConditionPrecedenceEnum precedence() const { return precedenceOf(m_tokens.back()); }
    void apply(zvCndConditionList& conditions) const { applyOperator(typeOf(m_tokens.back()), conditions); }
    void pop() { m_tokens.pop(); }

private:
    zvStringList& m_tokens;
};

// Applies the waiting operators that bind more closely than `precedence`. A failure leaves the one that
// failed.
template <class Operators>
void applyCloserOperators(zvCndConditionPrecedenceEnum precedence, Operators& waiting,
                          zvCndConditionList& conditions) {
    while (!waiting.empty() && !waiting.isParenthesis() && waiting.precedence() > precedence) {
        waiting.apply(conditions);
        waiting.pop();
    }
}

// Applies the waiting operators back to an opening parenthesis, which has to be there for a closing one only.
template <class Operators>
void applyOperators(Operators& waiting, zvCndConditionList& conditions, bool closingParenthesis) {
    while (!waiting.empty() && !waiting.isParenthesis()) {
        waiting.apply(conditions);
        waiting.pop();
    }
    const bool isOpen = !waiting.empty();
    if (isOpen != closingParenthesis) {
        logger.raise(isOpen ? "Error in matching parenthesis, closing parenthesis missing"
                            : "Error in matching parenthesis, opening parenthesis missing");
    }
    if (isOpen) {
        waiting.pop();
    }
}

// Appends the text in quotes, its backslashes and quotes behind a backslash.
void appendConstant(zvTextBuilder& builder, const zvString& text) {
    builder.append("'");
    int begin = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\' || text[i] == u'\'') {
            builder.append(text.data() + begin, i - begin).append("\\");
            begin = i;
        }
    }
    builder.append(text.data() + begin, text.size() - begin).append("'");
}

void appendOperand(zvTextBuilder& builder, const zvCndOperand& operand) {
    const bool isText = operand.value().getDataType() == zvDataTypeString;
    const zvString converted = isText ? zvString() : operand.value().getValue();
    const zvString& text = isText ? operand.value().text() : converted;
    switch (operand.getValueType()) {
        case zvOperandVariable:
            builder.append("{").append(text).append("}");
            break;
        case zvOperandConstant:
            appendConstant(builder, text);
            break;
        default:
            break;
    }
}

// A condition that is being written: its children that are still to come, and what stands between two of
// them.
struct OpenCondition {
    zvCndChildren rest;
    const char* token;
};

// Writes what comes before a condition's children: all of a comparison, which has none.
void openCondition(const zvCndCondition& condition, zvTextBuilder& builder,
                   std::vector<OpenCondition>& open) {
    const zvICndLogicalCondition* const logical = zvICndLogicalCondition::from(condition);
    const zvCndChildren children = logical == nullptr ? zvCndChildren() : logical->children();
    const bool isNot = logical != nullptr && logical->getConditionType() == zvCndConditionNot;
    if (condition.IsNull() || (isNot && children.next == children.end)) {
        logger.raise("NULL condition received inside zvCndParsingUtils::createConditionString");
    }
    const zvCndOperator* const made = zvCndOperator::of(condition->getConditionType());
    if (made == nullptr) {
        logger.raise("Undefined condition received inside zvCndParsingUtils::createConditionString");
    }
    if (isNot) {
        builder.append(made->token);
    }
    if (made->isComparison()) {
        const auto* const comparison = static_cast<zvICndComparisonCondition*>(condition.operator->());
        appendOperand(builder, comparison->lhsOperand());
        builder.append(" ").append(made->token).append(" ");
        appendOperand(builder, comparison->rhsOperand());
    }
    open.push_back({children, made->token});
}

void closeChild(zvTextBuilder& builder, const OpenCondition& parent) {
    builder.append(" ) ");
    if (parent.rest.next != parent.rest.end) {
        builder.append(parent.token);
    }
}

}  // namespace

/// Reads one condition text, from left to right.
class zvCndParsingUtils::Reader {
public:
    explicit Reader(const zvString& text) : m_text(text), m_pUnits(text.data()), m_end(text.size()) {}

    zvCndCondition read() {
        try {
            return readAll();
        } catch (zvException& failure) {
            zvResult result = failure.getResult();
            result.setAdditionalInformation(zvString(faultPosition()));
            failure.setResult(result);
            throw;
        }
    }

private:
    zvCndCondition readAll() {
        if (m_text.empty()) {
            logger.raise("Empty condition string received");
        }
        for (trim(); m_position < m_end; ++m_position) {
            readNext();
        }
        m_position = m_text.size();
        applyOperators(m_operators, m_conditions, false);
        if (m_conditions.numConditions() != 1) {
            logger.raise("Invalid condition string, check the usage of operators");
        }
        return m_conditions.back();
    }

    void trim() {
        while (m_end > 0 && std::iswspace(m_pUnits[m_end - 1]) != 0) {
            --m_end;
        }
        while (m_position < m_end && std::iswspace(m_pUnits[m_position]) != 0) {
            ++m_position;
        }
    }

    // Leaves the position on the last character that belongs to what begins at it.
    void readNext() {
        switch (m_pUnits[m_position]) {
            case u'\'':
                readConstant();
                break;
            case u'{':
                readVariable();
                break;
            case u'}':
                logger.raise(braceNotOpened);
            case u'(':
                m_operators.push(nullptr, m_position);
                break;
            case u')':
                closeParenthesis();
                break;
            case u' ':
                break;
            default:
                readOperator();
                break;
        }
    }

    // Only a backslash without another one before it is left out, whatever that other one meant.
    void readConstant() {
        const auto isSpecial = [](wchar16 unit) { return unit == u'\'' || unit == u'\\'; };
        const wchar16* const end = m_pUnits + m_end;
        const wchar16* begin = m_pUnits + m_position + 1;
        zvTextBuilder builder;
        for (const wchar16* at = std::find_if(begin, end, isSpecial); at != end;
             at = std::find_if(at + 1, end, isSpecial)) {
            const bool isEscaped = at[-1] == u'\\';
            if (isEscaped) {
                continue;
            }
            const int length = static_cast<int>(at - begin);
            if (*at == u'\'') {
                finishOperand(
                    builder.empty() ? zvString(begin, length) : builder.append(begin, length).toString(),
                    zvOperandConstant, at);
                return;
            }
            builder.append(begin, length);
            begin = at + 1;
        }
        failOpenOperand();
    }

    void readVariable() {
        const wchar16* const begin = m_pUnits + m_position + 1;
        const wchar16* const end = m_pUnits + m_end;
        const wchar16* const brace =
            std::find_if(begin, end, [](wchar16 unit) { return unit == u'{' || unit == u'}'; });
        if (brace == end) {
            failOpenOperand();
        }
        if (*brace == u'{') {
            m_position = positionOf(brace);
            logger.raise("1.Variable Operand syntax error");
        }
        finishOperand(zvString(begin, static_cast<int>(brace - begin)), zvOperandVariable, brace);
    }

    int positionOf(const wchar16* unit) const { return static_cast<int>(unit - m_pUnits); }

    void finishOperand(zvString text, zvOperandValueTypeEnum valueType, const wchar16* last) {
        m_position = positionOf(last);
        processComparisonOperands(text, m_leftText, valueType, m_leftOperand, m_pendingType, m_conditions);
    }

    [[noreturn]] static void failOpenOperand() {
        logger.raise("Invalid condition string, check the syntax of condition string");
    }

    void closeParenthesis() {
        if (m_operators.empty()) {
            logger.raise("Error in matching parenthesis");
        }
        applyOperators(m_operators, m_conditions, true);
    }

    void readOperator() {
        const int end = operatorEnd(m_text, m_position);
        const zvCndOperator* const made = zvCndOperator::of(m_pUnits + m_position, end - m_position);
        if (made == nullptr) {
            failOperator();
        }
        if (made->isComparison()) {
            m_pendingType = made->type;
        } else {
            applyCloserOperators(made->precedence, m_operators, m_conditions);
            m_operators.push(made, m_position);
        }
        m_position = end - 1;
    }

    // A word up to a closing brace is a name that lacks its opening one.
    [[noreturn]] void failOperator() {
        const auto isWordEnd = [](wchar16 unit) {
            return unit == u'}' || unit == u'{' || unit == u'\'' || unit == u'(' || unit == u')' ||
                   unit == u' ';
        };
        const wchar16* const end = m_pUnits + m_end;
        const wchar16* const wordEnd = std::find_if(m_pUnits + m_position, end, isWordEnd);
        if (wordEnd != end && *wordEnd == u'}') {
            m_position = positionOf(wordEnd);
            logger.raise(braceNotOpened);
        }
        logger.raise("Valid condition operator not found");
    }

    // At the end of the text, a parenthesis that still waits on top is the one that is never closed.
    int faultPosition() const {
        const bool isUnclosed =
            m_position == m_text.size() && !m_operators.empty() && m_operators.isParenthesis();
        return isUnclosed ? m_operators.position() : m_position;
    }

    const zvString& m_text;
    const wchar16* m_pUnits;
    int m_position = 0;
    int m_end;  // without the white space at the end
    zvString m_leftText;
    zvCndOperand m_leftOperand;
    zvCndConditionTypeEnum m_pendingType = zvCndConditionNone;
    WaitingOperators m_operators;
    zvCndConditionList m_conditions;
};

zvCndParsingUtils::zvCndParsingUtils() = default;

zvCndParsingUtils::zvCndParsingUtils(const zvCndParsingUtils& other) = default;

zvCndParsingUtils::~zvCndParsingUtils() = default;

zvCndParsingUtils& zvCndParsingUtils::operator=(const zvCndParsingUtils&) = default;

zvCndCondition zvCndParsingUtils::createConditionStructure(const zvString& text) {
    logger.info("zvCndParsingUtils::createConditionStructure - ", text);
    return Reader(text).read();
}

zvString zvCndParsingUtils::findCndOperator(const zvString& text, int& position) {
    const int end = operatorEnd(text, position);
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
    zvCndOperand rightOperand = getCndOperand(std::move(text), valueType);
    requireComparison(pendingType, leftOperand.hasText() && rightOperand.hasText(), undefinedOperandMessage);
    const zvCndComparisonCondition comparison = zvCndConditionFactory::createComparisonCondition(
        pendingType, std::move(leftOperand), std::move(rightOperand));
    if (!conditions.addCondition(comparison)) {
        logger.raise("NULL comparison condition");
    }
    leftText.reset();
    pendingType = zvCndConditionNone;
}

zvCndCondition zvCndParsingUtils::createComparisonCondition(const zvCndConditionTypeEnum& type,
                                                            const zvCndOperand& lhs,
                                                            const zvCndOperand& rhs) {
    requireComparison(type, lhs.hasText() && rhs.hasText(), undefinedOperandMessage);
    return zvCndConditionFactory::getCondition(
        zvCndConditionFactory::createComparisonCondition(type, zvCndOperand(lhs), zvCndOperand(rhs)));
}

zvCndCondition zvCndParsingUtils::createComparisonCondition(const zvCndConditionTypeEnum& type,
                                                            const zvString& lhs, const zvString& rhs) {
    requireComparison(type, !lhs.empty() && !rhs.empty(),
                      "Empty Operand string or Undefined condition type, check condition string syntax");
    return createComparisonCondition(type, getCndOperand(lhs, zvOperandVariable),
                                     getCndOperand(rhs, zvOperandConstant));
}

void zvCndParsingUtils::processLogicalCndOperatorString(const zvString& token, zvStringList& operators,
                                                        zvCndConditionList& conditions) {
    WaitingTokens waiting(operators);
    applyCloserOperators(precedenceOf(token), waiting, conditions);
    operators.addString(token);
}

void zvCndParsingUtils::processStrOperatorStack(zvStringList& operators, zvCndConditionList& conditions,
                                                bool closingParenthesis) {
    WaitingTokens waiting(operators);
    applyOperators(waiting, conditions, closingParenthesis);
}

zvCndCondition zvCndParsingUtils::createLogicalCondition(const zvString& token) {
    return createLogical(typeOf(token));
}

void zvCndParsingUtils::setLogicalCndIntoCndStack(const zvCndCondition& condition,
                                                  zvCndConditionList& conditions) {
    setChildren(condition, conditions);
}

void zvCndParsingUtils::createNsetLogicalCndIntoCndStack(const zvString& token,
                                                         zvCndConditionList& conditions) {
    applyOperator(typeOf(token), conditions);
}

zvString zvCndParsingUtils::convertOperandToStringFormat(const zvCndOperand& operand) {
    zvTextBuilder builder;
    appendOperand(builder, operand);
    return builder.toString();
}

zvString zvCndParsingUtils::createConditionString(const zvCndCondition& condition) {
    zvTextBuilder builder;
    std::vector<OpenCondition> open;
    openCondition(condition, builder, open);
    while (!open.empty()) {
        OpenCondition& current = open.back();
        if (current.rest.next != current.rest.end) {
            builder.append(" ( ");
            openCondition(*current.rest.next++, builder, open);
            continue;
        }
        open.pop_back();
        if (!open.empty()) {
            closeChild(builder, open.back());
        }
    }
    return builder.toString();
}
