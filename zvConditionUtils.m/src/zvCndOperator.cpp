#include "zvCndOperator.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

constexpr zvCndOperator operators[] = {
    {zvCndConditionEquals, "Equals", "=", zvCndConditionPrecedenceNone},
    {zvCndConditionNotEquals, "NotEquals", "!=", zvCndConditionPrecedenceNone},
    {zvCndConditionLessThan, "LessThan", "<", zvCndConditionPrecedenceNone},
    {zvCndConditionLessThanEquals, "LessThanEquals", "<=", zvCndConditionPrecedenceNone},
    {zvCndConditionGreaterThan, "GreaterThan", ">", zvCndConditionPrecedenceNone},
    {zvCndConditionGreaterThanEquals, "GreaterThanEquals", ">=", zvCndConditionPrecedenceNone},
    {zvCndConditionAnd, "And", "AND", zvCndConditionPrecedenceAnd},
    {zvCndConditionOr, "Or", "OR", zvCndConditionPrecedenceOr},
    {zvCndConditionNot, "Not", "NOT", zvCndConditionPrecedenceNot},
};

constexpr int longestToken = sizeof(zvCndOperator::token) - 1;

char upperCase(wchar16 unit) {
    if (unit >= u'a' && unit <= u'z') {
        return static_cast<char>(unit - u'a' + u'A');
    }
    return unit < 0x80 ? static_cast<char>(unit) : '?';
}

}  // namespace

const zvCndOperator* zvCndOperator::of(zvCndConditionTypeEnum type) {
    const int index = static_cast<int>(type) - 1;
    return index >= 0 && index < static_cast<int>(std::size(operators)) ? &operators[index] : nullptr;
}

const zvCndOperator* zvCndOperator::of(const wchar16* text, int length) {
    if (length > longestToken) {
        return nullptr;
    }
    char token[sizeof(zvCndOperator::token)] = {};
    for (int i = 0; i < length; ++i) {
        token[i] = upperCase(text[i]);
    }
    const auto isToken = [&token](const zvCndOperator& row) {
        return std::memcmp(row.token, token, sizeof(token)) == 0;
    };
    const auto* const found = std::find_if(std::begin(operators), std::end(operators), isToken);
    return found == std::end(operators) ? nullptr : found;
}
