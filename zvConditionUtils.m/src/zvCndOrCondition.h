#ifndef ZV_CND_OR_CONDITION_H
#define ZV_CND_OR_CONDITION_H

#include "zvICndListCondition.h"

#endif
