#ifndef ZV_TEXT_CODEC_H
#define ZV_TEXT_CODEC_H

#include <cstddef>
#include <string_view>
#include <type_traits>

#include "zvTypes.h"

/// Converts between narrow text (multibyte, in the process's locale, or UTF-8 once adopted) and wide text
/// (UTF-16 code units).
///
/// Nothing here allocates: callers provide the buffer, sized by a measurement or by an upper bound. Where
/// wchar_t is wider than a code unit, surrogate pairs are joined and split as needed.
namespace zvTextCodec {

/// Returned for text that cannot be converted.
constexpr std::size_t unconvertible = static_cast<std::size_t>(-1);

/// From now on narrow text is UTF-8 whatever the locale, for a system that has no such locale.
void adoptUtf8();
bool isUtf8Adopted();

/// Whether `text` is ASCII, which is the same in every encoding. No early exit, so that the compiler can
/// vectorise the loop.
template <typename Character>
bool isAscii(const Character* text, std::size_t length) {
    unsigned bits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        bits |= static_cast<std::make_unsigned_t<Character>>(text[i]);
    }
    return bits < 0x80U;
}

/// The number of code units that `text` converts to, terminator excluded; `unconvertible` for invalid text.
std::size_t wideLength(const char* text);

/// Converts `text` to at most `capacity` code units, without a terminator and never ending in half a pair.
/// @return the number of code units written; 0 for invalid text.
std::size_t widen(const char* text, wchar16* out, std::size_t capacity);

/// The number of bytes that the `length` code units of `text` convert to, terminator excluded;
/// `unconvertible` if the locale cannot encode them.
std::size_t narrowLength(const wchar16* text, std::size_t length);

/// The bytes that a code unit takes at most.
std::size_t longestUnit();

/// Converts `text` to the bytes that narrowLength() counts, without a terminator.
/// @return the number of bytes written; `unconvertible`, with `out` partly written, if the locale cannot
/// encode them.
std::size_t narrow(const wchar16* text, std::size_t length, char* out);

/// Converts `text` to UTF-8, whatever the locale: at most three bytes per code unit, without a terminator. A
/// lone surrogate, which UTF-8 cannot encode, becomes U+FFFD.
/// @return the number of bytes written.
std::size_t toUtf8(const wchar16* text, std::size_t length, char* out);

/// Converts null-terminated UTF-8, whatever the locale: at most one code unit per byte, without a terminator.
/// @return the number of code units written; `unconvertible`, with `out` partly written, if it is malformed.
std::size_t fromUtf8(const char* text, wchar16* out);

/// The position of the first "\\" or "/" of a narrow path, from `from` on, where a character begins; npos if
/// there is none. Told by characters, because some encodings have the byte of "\\" inside other characters.
std::size_t nextSeparator(std::string_view path, std::size_t from);
/// The same for the last one.
std::size_t lastSeparator(std::string_view path);

}  // namespace zvTextCodec

#endif
