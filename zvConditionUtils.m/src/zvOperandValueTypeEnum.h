#ifndef ZV_OPERAND_VALUE_TYPE_ENUM_H
#define ZV_OPERAND_VALUE_TYPE_ENUM_H

#include "zvCndOperand.h"

#endif
