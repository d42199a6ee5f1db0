#include "zvUtf8.h"

#include "zvSurrogate.h"

namespace zvUtf8 {
namespace {

void append(std::string& bytes, char32_t character) {
    constexpr char32_t leads[] = {0x00, 0xC0, 0xE0, 0xF0};
    const unsigned following =
        (character >= 0x80 ? 1 : 0) + (character >= 0x800 ? 1 : 0) + (character >= 0x10000 ? 1 : 0);
    bytes += static_cast<char>(leads[following] | (character >> (6 * following)));
    for (unsigned left = following; left-- > 0;) {
        bytes += static_cast<char>(0x80 | ((character >> (6 * left)) & 0x3F));
    }
}

}  // namespace

std::string encode(const zvString& text) {
    constexpr char32_t replacement = 0xFFFD;
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (int i = 0; i < text.size(); ++i) {
        char32_t character = text[i];
        // The terminator stands behind the last unit.
        if (zvSurrogate::isHigh(text[i]) && zvSurrogate::isLow(text[i + 1])) {
            character = zvSurrogate::join(text[i], text[i + 1]);
            ++i;
        } else if (zvSurrogate::isAny(text[i])) {
            character = replacement;
        }
        append(bytes, character);
    }
    return bytes;
}

}  // namespace zvUtf8
