#ifndef ZV_PLATFORM_COMMON_H
#define ZV_PLATFORM_COMMON_H

#include "zvPlatform.h"

/// Shared by the implementations of zvPlatform.
namespace zvPlatform {

/// The last second of the year 3000 in UTC: the upper limit of the time functions in the Windows C runtime.
constexpr zvInt64 lastSecond = 32535215999;

constexpr bool isAccessMode(int mode) { return (mode & ~readAndWrite) == 0; }

constexpr bool isTellable(zvInt64 seconds) { return seconds >= 0 && seconds <= lastSecond; }

/// What openBelow() does on a POSIX system whose kernel cannot open a path below a directory in one step.
File openStepByStep(Handle directory, const std::filesystem::path& path);

}  // namespace zvPlatform

#endif
