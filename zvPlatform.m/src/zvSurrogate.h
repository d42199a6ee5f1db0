#ifndef ZV_SURROGATE_H
#define ZV_SURROGATE_H

#include "zvTypes.h"

/// The code units that stand in pairs, high before low, for the characters beyond 16 bits.
namespace zvSurrogate {

constexpr bool isAny(wchar16 unit) { return (unit & 0xF800U) == 0xD800U; }
constexpr bool isHigh(wchar16 unit) { return (unit & 0xFC00U) == 0xD800U; }
constexpr bool isLow(wchar16 unit) { return (unit & 0xFC00U) == 0xDC00U; }

/// The character of a pair.
constexpr char32_t join(wchar16 high, wchar16 low) {
    return 0x10000U + ((high & 0x3FFU) << 10U) + (low & 0x3FFU);
}
/// The halves of a character beyond 16 bits.
constexpr wchar16 highOf(char32_t character) {
    return static_cast<wchar16>(0xD800U + ((character - 0x10000U) >> 10U));
}
constexpr wchar16 lowOf(char32_t character) {
    return static_cast<wchar16>(0xDC00U + ((character - 0x10000U) & 0x3FFU));
}

}  // namespace zvSurrogate

#endif
