#ifndef ZV_UTF8_TEXT_H
#define ZV_UTF8_TEXT_H

#include <string>

#include "zvUtf8.h"

/// The text that the bytes encode; empty for malformed UTF-8.
inline zvString fromUtf8(const std::string& bytes) {
    zvString text;
    static_cast<void>(zvUtf8::decode(bytes, text));
    return text;
}

#endif
