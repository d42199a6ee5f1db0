#ifndef ZV_I_CND_LESS_THAN_EQUALS_CONDITION_H
#define ZV_I_CND_LESS_THAN_EQUALS_CONDITION_H

#include "zvICndComparisonCondition.h"

#endif
