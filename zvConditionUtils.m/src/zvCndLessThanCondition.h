#ifndef ZV_CND_LESS_THAN_CONDITION_H
#define ZV_CND_LESS_THAN_CONDITION_H

#include "zvICndComparisonCondition.h"

#endif
