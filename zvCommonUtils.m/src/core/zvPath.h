#ifndef ZV_PATH_H
#define ZV_PATH_H

#include <string_view>

#include "zvString.h"

namespace zvPath {

/// The part behind the last backslash or slash; empty for a bare name.
zvString fileName(const zvString& path);
std::string_view fileName(std::string_view path);

/// `folder`, a backslash and `name`.
zvString join(const zvString& folder, const zvString& name);

}  // namespace zvPath

#endif
