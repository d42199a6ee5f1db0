#ifndef ZV_SURROGATE_H
#define ZV_SURROGATE_H

#include "zvTypes.h"

/// UTF-16 surrogates: pairs of code units, high before low, that encode the characters beyond U+FFFF.
namespace zvSurrogate {

constexpr bool isAny(wchar16 unit) { return (unit & 0xF800U) == 0xD800U; }
constexpr bool isHigh(wchar16 unit) { return (unit & 0xFC00U) == 0xD800U; }
constexpr bool isLow(wchar16 unit) { return (unit & 0xFC00U) == 0xDC00U; }

/// The character that a surrogate pair encodes.
constexpr char32_t join(wchar16 high, wchar16 low) {
    return 0x10000U + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
}
/// The surrogate pair that encodes a character beyond U+FFFF.
constexpr wchar16 highOf(char32_t character) {
    return static_cast<wchar16>(0xD800U + ((character - 0x10000U) >> 10U));
}
constexpr wchar16 lowOf(char32_t character) {
    return static_cast<wchar16>(0xDC00U + ((character - 0x10000U) & 0x3FFU));
}

}  // namespace zvSurrogate

#endif
