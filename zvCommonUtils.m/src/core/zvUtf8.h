#ifndef ZV_UTF8_H
#define ZV_UTF8_H

#include <string>
#include <string_view>

#include "zvString.h"

/// Text as UTF-8, whatever the process's locale: for wire formats and files that do not depend on it.
namespace zvUtf8 {

/// `text` as UTF-8. A lone surrogate, which UTF-8 cannot encode, becomes U+FFFD.
ZV_EXPORT std::string encode(const zvString& text);
/// The same as a view into `buffer`, which grows on demand and can be reused.
ZV_EXPORT std::string_view encode(const zvString& text, std::string& buffer);
/// The text that `bytes` encode, up to a null byte; false, with `text` empty, for malformed UTF-8.
ZV_EXPORT bool decode(const std::string& bytes, zvString& text);
/// The text that `bytes` encode, with U+FFFD for what is malformed and for a null byte: for what is shown.
ZV_EXPORT zvString decodeReplacing(std::string_view bytes);

}  // namespace zvUtf8

#endif
