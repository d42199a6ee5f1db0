#ifndef ZV_COMM_PROTOCOAL_ENUM_H
#define ZV_COMM_PROTOCOAL_ENUM_H

#include "zvCommunicationFactory.h"

#endif
