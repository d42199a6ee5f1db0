#ifndef ZV_CND_COMPARISON_CONDITION_H
#define ZV_CND_COMPARISON_CONDITION_H

#include "zvICndComparisonCondition.h"

#endif
