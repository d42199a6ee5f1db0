#ifndef ZV_NATIVE_PATH_H
#define ZV_NATIVE_PATH_H

#include <filesystem>

#include "zvString.h"

/// The path for the standard library, with this system's delimiters.
std::filesystem::path toNativePath(const zvString& path);

#endif
