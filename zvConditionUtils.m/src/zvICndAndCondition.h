#ifndef ZV_I_CND_AND_CONDITION_H
#define ZV_I_CND_AND_CONDITION_H

#include "zvICndListCondition.h"

#endif
