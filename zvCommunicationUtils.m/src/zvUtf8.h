#ifndef ZV_UTF8_H
#define ZV_UTF8_H

#include <string>

#include "zvString.h"

namespace zvUtf8 {

/// The text's UTF-8 bytes, whatever the process's locale: what goes over the wire does not depend on it. Half
/// a surrogate pair, which has no UTF-8 form, becomes U+FFFD.
std::string encode(const zvString& text);

}  // namespace zvUtf8

#endif
