#ifndef ZV_CND_NOT_CONDITION_H
#define ZV_CND_NOT_CONDITION_H

#include "zvICndNotCondition.h"

#endif
