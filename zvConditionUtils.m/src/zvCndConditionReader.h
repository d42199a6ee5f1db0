#ifndef ZV_CND_CONDITION_READER_H
#define ZV_CND_CONDITION_READER_H

#include "zvCndCondition.h"
#include "zvString.h"

/// Reads the texts of conditions.
namespace zvCndConditionReader {

/// A condition that was read, and the position in its text from which on the rest is ignored: an operand or a
/// comparison operator that belongs to no comparison. The text's length when nothing is ignored.
struct Reading {
    zvCndCondition condition;
    int end;
};

/// Logs the text, and logs and throws as a zvException: a text that is no condition. The additional
/// information of its result is the decimal position at which the fault was noticed.
Reading read(const zvString& text);

/// The position after the longest run of operator characters from `begin` on.
int operatorEnd(const zvString& text, int begin);

}  // namespace zvCndConditionReader

#endif
