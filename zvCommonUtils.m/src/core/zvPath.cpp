#include "zvPath.h"

#include "zvCharString.h"
#include "zvPlatform.h"
#include "zvStringView.h"
#include "zvTextBuilder.h"
#include "zvTextCodec.h"

namespace zvPath {

zvString fileName(const zvString& path) {
    constexpr wchar16 delimiters[] = {u'\\', u'/', 0};
    const zvStringView whole = viewOf(path);
    const std::size_t delimiter = whole.find_last_of(delimiters);
    if (delimiter == zvStringView::npos) {
        return {};
    }
    const zvStringView name = whole.substr(delimiter + 1);
    return {name.data(), static_cast<int>(name.size())};
}

std::string_view fileName(std::string_view path) {
    const std::size_t delimiter = zvTextCodec::lastSeparator(path);
    return delimiter == std::string_view::npos ? std::string_view() : path.substr(delimiter + 1);
}

zvString withNativeDelimiters(const zvString& path) {
    zvString native(path);
    native.replace("\\", zvPlatform::nativePath("\\").c_str());
    return native;
}

std::string native(const zvString& path) { return zvPlatform::nativePath(zvCharString(path).data()); }

zvString join(const zvString& folder, const zvString& name) {
    return zvTextBuilder::concat(folder, "\\", name);
}

}  // namespace zvPath
