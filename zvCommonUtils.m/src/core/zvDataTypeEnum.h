#ifndef ZV_DATA_TYPE_ENUM_H
#define ZV_DATA_TYPE_ENUM_H

#include "zvValue.h"

#endif
