#ifndef ZV_PLATFORM_COMMON_H
#define ZV_PLATFORM_COMMON_H

#include "zvPlatform.h"

/// What the seam's source files have in common.
namespace zvPlatform {

/// The last second of the year 3000 in UTC: the end of what the home platform's runtime can tell.
constexpr zvInt64 lastSecond = 32535215999;

constexpr bool isAccessMode(int mode) { return (mode & ~readAndWrite) == 0; }

constexpr bool isTellable(zvInt64 seconds) { return seconds >= 0 && seconds <= lastSecond; }

}  // namespace zvPlatform

#endif
