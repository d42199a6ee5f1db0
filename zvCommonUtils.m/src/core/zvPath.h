#ifndef ZV_PATH_H
#define ZV_PATH_H

#include <string>
#include <string_view>

#include "zvString.h"

namespace zvPath {

/// The part behind the last backslash or slash; empty for a bare name.
zvString fileName(const zvString& path);
std::string_view fileName(std::string_view path);

/// The path in narrow text, as this system's own interfaces expect it; empty for a path without a narrow
/// form.
std::string native(const zvString& path);

/// `folder`, a backslash and `name`.
zvString join(const zvString& folder, const zvString& name);

}  // namespace zvPath

#endif
