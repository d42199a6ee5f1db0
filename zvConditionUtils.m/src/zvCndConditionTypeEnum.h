#ifndef ZV_CND_CONDITION_TYPE_ENUM_H
#define ZV_CND_CONDITION_TYPE_ENUM_H

#include "zvICndCondition.h"

#endif
