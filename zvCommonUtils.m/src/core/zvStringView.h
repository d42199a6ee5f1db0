#ifndef ZV_STRING_VIEW_H
#define ZV_STRING_VIEW_H

#include <cstddef>
#include <string_view>

#include "zvString.h"

/// The text of a zvString, with the standard library's operations and without a copy.
using zvStringView = std::basic_string_view<wchar16>;

inline zvStringView viewOf(const zvString& text) {
    return {text.data(), static_cast<std::size_t>(text.size())};
}

#endif
