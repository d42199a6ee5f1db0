#ifndef ZV_CND_CONDITION_PRECEDENCE_ENUM_H
#define ZV_CND_CONDITION_PRECEDENCE_ENUM_H

/// How closely the logical operators of a condition text bind, the highest most closely.
enum zvCndConditionPrecedenceEnum : int {
    zvCndConditionPrecedenceNone = 0,
    zvCndConditionPrecedenceOr = 1,
    zvCndConditionPrecedenceAnd = 2,
    zvCndConditionPrecedenceNot = 3
};

#endif
