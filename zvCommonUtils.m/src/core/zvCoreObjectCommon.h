#ifndef ZV_CORE_OBJECT_COMMON_H
#define ZV_CORE_OBJECT_COMMON_H

#include "zvCoreObject.h"

#endif
