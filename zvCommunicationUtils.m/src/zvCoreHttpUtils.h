#ifndef ZV_CORE_HTTP_UTILS_H
#define ZV_CORE_HTTP_UTILS_H

#include "zvCommunicationFactory.h"

#endif
