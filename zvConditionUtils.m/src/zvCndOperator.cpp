#include "zvCndOperator.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

// clang-format mistakes "operator<" for the start of a template argument list.
// clang-format off
constexpr zvCndOperator operators[] = {
    {zvCndConditionEquals, "Equals", "=", zvCndConditionPrecedenceNone, &zvValue::operator==},
    {zvCndConditionNotEquals, "NotEquals", "!=", zvCndConditionPrecedenceNone, &zvValue::operator!=},
    {zvCndConditionLessThan, "LessThan", "<", zvCndConditionPrecedenceNone, &zvValue::operator<},
    {zvCndConditionLessThanEquals, "LessThanEquals", "<=", zvCndConditionPrecedenceNone, &zvValue::operator<=},
    {zvCndConditionGreaterThan, "GreaterThan", ">", zvCndConditionPrecedenceNone, &zvValue::operator>},
    {zvCndConditionGreaterThanEquals, "GreaterThanEquals", ">=", zvCndConditionPrecedenceNone,
     &zvValue::operator>=},
    {zvCndConditionAnd, "And", "AND", zvCndConditionPrecedenceAnd, nullptr},
    {zvCndConditionOr, "Or", "OR", zvCndConditionPrecedenceOr, nullptr},
    {zvCndConditionNot, "Not", "NOT", zvCndConditionPrecedenceNot, nullptr},
};
// clang-format on

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
