#ifndef ZV_CND_GREATER_THAN_CONDITION_H
#define ZV_CND_GREATER_THAN_CONDITION_H

#include "zvICndComparisonCondition.h"

#endif
