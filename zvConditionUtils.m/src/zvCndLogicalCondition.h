#ifndef ZV_CND_LOGICAL_CONDITION_H
#define ZV_CND_LOGICAL_CONDITION_H

#include "zvICndLogicalCondition.h"

#endif
