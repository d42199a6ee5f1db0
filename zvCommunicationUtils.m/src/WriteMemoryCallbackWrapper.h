#ifndef WRITE_MEMORY_CALLBACK_WRAPPER_H
#define WRITE_MEMORY_CALLBACK_WRAPPER_H

#include "zvCommunicationUtils.h"

#endif
