#ifndef ZV_I_CND_GREATER_THAN_EQUALS_CONDITION_H
#define ZV_I_CND_GREATER_THAN_EQUALS_CONDITION_H

#include "zvICndComparisonCondition.h"

#endif
