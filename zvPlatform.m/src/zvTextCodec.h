#ifndef ZV_TEXT_CODEC_H
#define ZV_TEXT_CODEC_H

#include <cstddef>
#include <type_traits>

#include "zvTypes.h"

/// Conversion between narrow text (multibyte, in the process's locale) and wide text (UTF-16 code units).
///
/// Callers allocate, and measure or know the most that a text can take, so that nothing in here allocates.
/// Where the runtime's wide character is larger than a code unit, surrogate pairs are joined and split on the
/// way.
namespace zvTextCodec {

/// What a measurement answers for a text that has no counterpart on the other side.
constexpr std::size_t unconvertible = static_cast<std::size_t>(-1);

/// Whether `text` is ASCII, which every encoding has as it stands. Folded over the whole text rather than
/// left at the first hit, so that it is done many characters at a time.
template <typename Character>
bool isAscii(const Character* text, std::size_t length) {
    unsigned bits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        bits |= static_cast<std::make_unsigned_t<Character>>(text[i]);
    }
    return bits < 0x80U;
}

/// Code units that `text` needs, terminator excluded.
std::size_t wideLength(const char* text);

/// Writes at most `capacity` code units, no terminator, never half a surrogate pair.
/// @return the number of units written; 0 for a text that cannot be converted.
std::size_t widen(const char* text, wchar16* out, std::size_t capacity);

/// Bytes that the `length` code units of `text` need, terminator excluded.
std::size_t narrowLength(const wchar16* text, std::size_t length);

/// Writes the bytes that narrowLength counts, at most MB_CUR_MAX for each unit, no terminator.
/// @return the number of bytes written; `unconvertible`, with some written, for a text without a narrow form.
std::size_t narrow(const wchar16* text, std::size_t length, char* out);

/// Writes UTF-8 whatever the process's locale, three bytes at most for each unit, no terminator. Half a
/// surrogate pair, which has no UTF-8 form, becomes U+FFFD.
/// @return the number of bytes written.
std::size_t toUtf8(const wchar16* text, std::size_t length, char* out);

}  // namespace zvTextCodec

#endif
