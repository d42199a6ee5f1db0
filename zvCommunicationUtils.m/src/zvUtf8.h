#ifndef ZV_UTF8_H
#define ZV_UTF8_H

#include <string>
#include <string_view>

#include "zvString.h"

namespace zvUtf8 {

/// `text` as UTF-8, whatever the process's locale: the wire format does not depend on it. A lone surrogate,
/// which UTF-8 cannot encode, becomes U+FFFD.
std::string encode(const zvString& text);
/// The same as a view into `buffer`, which grows on demand and can be reused.
std::string_view encode(const zvString& text, std::string& buffer);

}  // namespace zvUtf8

#endif
