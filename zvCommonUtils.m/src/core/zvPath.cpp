#include "zvPath.h"

#include "zvCharString.h"
#include "zvPlatform.h"
#include "zvStringView.h"
#include "zvTextBuilder.h"

namespace zvPath {

namespace {

template <typename Unit>
std::basic_string_view<Unit> fileNameIn(std::basic_string_view<Unit> path) {
    using View = std::basic_string_view<Unit>;
    constexpr Unit delimiters[] = {'\\', '/', 0};
    const std::size_t delimiter = path.find_last_of(delimiters);
    return delimiter == View::npos ? View() : path.substr(delimiter + 1);
}

}  // namespace

zvString fileName(const zvString& path) {
    const zvStringView name = fileNameIn(viewOf(path));
    return {name.data(), static_cast<int>(name.size())};
}

std::string_view fileName(std::string_view path) { return fileNameIn(path); }

std::string native(const zvString& path) { return zvPlatform::nativePath(zvCharString(path).data()); }

zvString join(const zvString& folder, const zvString& name) {
    return zvTextBuilder::concat(folder, "\\", name);
}

}  // namespace zvPath
