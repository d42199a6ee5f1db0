#include "zvCndConditionReader.h"

#include <algorithm>
#include <cwctype>
#include <utility>
#include <vector>

#include "zvCndConditionBuilder.h"
#include "zvCndOperator.h"
#include "zvCndParsingLog.h"
#include "zvSecrets.h"

namespace zvCndConditionReader {

namespace {

using zvCndConditionBuilder::addOperand;
using zvCndConditionBuilder::applyCloserOperators;
using zvCndConditionBuilder::applyOperator;
using zvCndConditionBuilder::applyOperators;
using zvCndParsing::logger;

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

// Reads one condition text, from left to right.
class Reader {
public:
    explicit Reader(const zvString& text) : m_text(text), m_pUnits(text.data()), m_end(text.size()) {}

    Reading read() {
        try {
            zvCndCondition condition = readAll();
            return {std::move(condition), isComplete() ? m_text.size() : m_incompleteFrom};
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

    // Whether every operand and comparison operator so far belongs to a comparison.
    bool isComplete() const { return m_leftText.empty() && m_pendingType == zvCndConditionNone; }

    void beginPart(int position) {
        if (isComplete()) {
            m_incompleteFrom = position;
        }
    }

    void finishOperand(zvString text, zvOperandValueTypeEnum valueType, const wchar16* last) {
        beginPart(m_position);
        m_position = positionOf(last);
        addOperand(std::move(text), valueType, m_leftText, m_leftOperand, m_pendingType, m_conditions);
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
            beginPart(m_position);
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
    int m_incompleteFrom = 0;
    int m_end;  // without the white space at the end
    zvString m_leftText;
    zvCndOperand m_leftOperand;
    zvCndConditionTypeEnum m_pendingType = zvCndConditionNone;
    WaitingOperators m_operators;
    zvCndConditionList m_conditions;
};

}  // namespace

int operatorEnd(const zvString& text, int begin) {
    int end = begin;
    while (end >= 0 && end < text.size() && isOperatorUnit(text[end])) {
        ++end;
    }
    return end;
}

Reading read(const zvString& text) {
    logger.info("zvCndParsingUtils::createConditionStructure - ",
                [&text] { return zvSecrets::maskedArgument(text); });
    return Reader(text).read();
}

}  // namespace zvCndConditionReader
