#ifndef ZV_UTF8_H
#define ZV_UTF8_H

#include <string>
#include <string_view>

#include "zvString.h"

namespace zvUtf8 {

/// The text's UTF-8 bytes, whatever the process's locale: what goes over the wire does not depend on it. Half
/// a surrogate pair, which has no UTF-8 form, becomes U+FFFD.
std::string encode(const zvString& text);
/// The same, written to the start of `buffer`, which grows as is needed and is kept for the next text.
std::string_view encode(const zvString& text, std::string& buffer);

}  // namespace zvUtf8

#endif
