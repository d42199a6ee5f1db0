#ifndef ZV_ACCESS_FAULT_H
#define ZV_ACCESS_FAULT_H

#include <string>

#include "zvCharString.h"
#include "zvPlatform.h"

/// Why the path is not accessible in that mode, in the system's words; empty when it is.
inline std::string zvAccessFault(const zvString& path, zvPlatform::AccessMode mode) {
    const unsigned long error = zvPlatform::accessError(zvCharString(path).data(), mode);
    return error == 0 ? std::string() : zvPlatform::errorText(error);
}

#endif
