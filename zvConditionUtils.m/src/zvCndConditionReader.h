#ifndef ZV_CND_CONDITION_READER_H
#define ZV_CND_CONDITION_READER_H

#include "zvCndCondition.h"
#include "zvString.h"

/// Reads the texts of conditions.
namespace zvCndConditionReader {

/// Logged and thrown as a zvException: a text that is no condition. The additional information of its result
/// is the decimal position at which the fault was noticed.
zvCndCondition read(const zvString& text);

/// The position after the longest run of operator characters from `begin` on.
int operatorEnd(const zvString& text, int begin);

}  // namespace zvCndConditionReader

#endif
