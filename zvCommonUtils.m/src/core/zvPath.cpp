#include "zvPath.h"

#include <algorithm>

#include "zvTextBuilder.h"

namespace zvPath {

zvString fileName(const zvString& path) {
    const int delimiter = std::max(path.reverseFind("\\"), path.reverseFind("/"));
    return delimiter == -1 ? zvString() : path.substr(delimiter + 1, path.size() - delimiter - 1);
}

std::string_view fileName(std::string_view path) {
    const std::size_t delimiter = path.find_last_of("/\\");
    return delimiter == std::string_view::npos ? std::string_view() : path.substr(delimiter + 1);
}

zvString join(const zvString& folder, const zvString& name) {
    return zvTextBuilder::concat(folder, "\\", name);
}

}  // namespace zvPath
