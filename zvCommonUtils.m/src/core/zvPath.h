#ifndef ZV_PATH_H
#define ZV_PATH_H

#include <string>
#include <string_view>

#include "zvString.h"

namespace zvPath {

/// The part after the last backslash or slash; empty for a path without either.
zvString fileName(const zvString& path);
std::string_view fileName(std::string_view path);

/// The path with this system's delimiters.
zvString withNativeDelimiters(const zvString& path);

/// The path in narrow text with this system's delimiters; empty for a path without a narrow form.
std::string native(const zvString& path);

/// `folder` and `name`, joined by a backslash.
zvString join(const zvString& folder, const zvString& name);

}  // namespace zvPath

#endif
