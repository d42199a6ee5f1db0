#ifndef ZV_EVENT_NAME_ENUM_H
#define ZV_EVENT_NAME_ENUM_H

#include "zvEventArguments.h"

#endif
