#ifndef ZV_CND_OPERATOR_H
#define ZV_CND_OPERATOR_H

#include "zvCndConditionPrecedenceEnum.h"
#include "zvICndCondition.h"
#include "zvString.h"

/// The properties of an operator of the condition language and its condition type.
struct zvCndOperator {
    zvCndConditionTypeEnum type;
    const char* name;
    char token[4];
    zvCndConditionPrecedenceEnum precedence;  // None for a comparison

    bool isComparison() const { return precedence == zvCndConditionPrecedenceNone; }

    /// The operator of a condition type; null if there is none.
    static const zvCndOperator* of(zvCndConditionTypeEnum type);
    /// The operator for a token, case-insensitively for logical operators; null if it is not one.
    static const zvCndOperator* of(const zvString& token) { return of(token.data(), token.size()); }
    static const zvCndOperator* of(const wchar16* text, int length);
};

#endif
