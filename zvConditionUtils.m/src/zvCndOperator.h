#ifndef ZV_CND_OPERATOR_H
#define ZV_CND_OPERATOR_H

#include "zvCndConditionPrecedenceEnum.h"
#include "zvICndCondition.h"
#include "zvValue.h"

/// What there is to know about an operator of the condition language and the condition type that it makes.
struct zvCndOperator {
    using Compare = bool (zvValue::*)(const zvValue&) const;

    zvCndConditionTypeEnum type;
    const char* name;
    char token[4];
    zvCndConditionPrecedenceEnum precedence;  // None for a comparison
    Compare compare;                          // null for a logical operator

    bool isComparison() const { return compare != nullptr; }

    /// Null for a type that no operator makes.
    static const zvCndOperator* of(zvCndConditionTypeEnum type);
    /// Ignoring the case of the logical operators; null for any other text.
    static const zvCndOperator* of(const zvString& token) { return of(token.data(), token.size()); }
    static const zvCndOperator* of(const wchar16* text, int length);
};

#endif
