#ifndef ZV_CORE_OBJECT_CFG_H
#define ZV_CORE_OBJECT_CFG_H

#include "zvCoreObject.h"

#endif
