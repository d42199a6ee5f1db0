#ifndef ZV_CND_CONDITION_WRITER_H
#define ZV_CND_CONDITION_WRITER_H

#include "zvCndCondition.h"
#include "zvCndOperand.h"
#include "zvString.h"

/// Writes conditions as texts.
namespace zvCndConditionWriter {

/// Logged and thrown as a zvException: a null handle, and a condition that is neither a comparison nor AND,
/// OR or NOT.
zvString textOf(const zvCndCondition& condition);
/// Empty for an unknown value type.
zvString textOf(const zvCndOperand& operand);

}  // namespace zvCndConditionWriter

#endif
