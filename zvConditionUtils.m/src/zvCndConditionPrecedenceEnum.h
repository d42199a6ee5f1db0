#ifndef ZV_CND_CONDITION_PRECEDENCE_ENUM_H
#define ZV_CND_CONDITION_PRECEDENCE_ENUM_H

/// Precedence of the logical operators; a higher number binds more tightly.
enum zvCndConditionPrecedenceEnum : int {
    zvCndConditionPrecedenceNone = 0,
    zvCndConditionPrecedenceOr = 1,
    zvCndConditionPrecedenceAnd = 2,
    zvCndConditionPrecedenceNot = 3
};

#endif
