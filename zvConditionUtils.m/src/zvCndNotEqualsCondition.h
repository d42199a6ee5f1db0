#ifndef ZV_CND_NOT_EQUALS_CONDITION_H
#define ZV_CND_NOT_EQUALS_CONDITION_H

#include "zvICndComparisonCondition.h"

#endif
