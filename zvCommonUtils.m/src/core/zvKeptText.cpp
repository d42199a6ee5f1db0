#include "zvKeptText.h"

#include <new>

#include "zvTextCodec.h"

namespace {

bool hasLength(std::size_t length) { return length != 0 && length != zvTextCodec::unconvertible; }

}  // namespace

namespace zvKeptText {

zvString widen(const char* text) {
    zvString wide(text);
    if (wide.empty() && hasLength(zvTextCodec::wideLength(text))) {
        throw std::bad_alloc();
    }
    return wide;
}

Narrow::Narrow(const zvString& text) : zvCharString(text) {
    if (*data() == '\0' && !text.empty() &&
        hasLength(zvTextCodec::narrowLength(text.data(), static_cast<std::size_t>(text.size())))) {
        throw std::bad_alloc();
    }
}

}  // namespace zvKeptText
