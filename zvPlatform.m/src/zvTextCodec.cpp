#include "zvTextCodec.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>

#include "zvSurrogate.h"

namespace zvTextCodec {
namespace {

constexpr char32_t lastCharacter = 0x10FFFF;  // some runtimes read bytes as numbers beyond it
constexpr bool unitsAreWideCharacters = sizeof(wchar_t) == sizeof(wchar16);

// Folded over the whole text rather than left at the first hit, so that it is done many bytes at a time.
template <typename Character>
bool isAscii(const Character* text, std::size_t length) {
    unsigned bits = 0;
    for (std::size_t i = 0; i < length; ++i) {
        bits |= static_cast<std::make_unsigned_t<Character>>(text[i]);
    }
    return bits < 0x80u;
}

// Hands every wide character of `text` to `take` until that answers false; false for invalid text.
template <typename Take>
bool decode(const char* text, Take take) {
    std::mbstate_t state{};
    const char* const end = text + std::strlen(text);
    while (text != end) {
        wchar_t character = 0;
        const std::size_t used = std::mbrtowc(&character, text, static_cast<std::size_t>(end - text), &state);
        if (used == static_cast<std::size_t>(-1) || used == static_cast<std::size_t>(-2) ||
            static_cast<char32_t>(character) > lastCharacter) {
            return false;
        }
        if (!take(character)) {
            return true;
        }
        text += std::max<std::size_t>(used, 1);
    }
    return true;
}

std::size_t unitsOf(wchar_t character) { return static_cast<char32_t>(character) >> 16U == 0 ? 1 : 2; }

// Hands the bytes of every character of `text` to `take`; false for a text that has no narrow form.
template <typename Take>
bool encode(const wchar16* text, std::size_t length, Take take) {
    std::mbstate_t state{};
    for (std::size_t i = 0; i < length; ++i) {
        char32_t character = text[i];
        if (!unitsAreWideCharacters && zvSurrogate::isHigh(text[i]) && i + 1 < length &&
            zvSurrogate::isLow(text[i + 1])) {
            character = zvSurrogate::join(text[i], text[i + 1]);
            ++i;
        }
        char bytes[MB_LEN_MAX];
        const std::size_t count = std::wcrtomb(bytes, static_cast<wchar_t>(character), &state);
        if (count == static_cast<std::size_t>(-1)) {
            return false;
        }
        take(bytes, count);
    }
    return true;
}

}  // namespace

std::size_t wideLength(const char* text) {
    const std::size_t bytes = std::strlen(text);
    if (isAscii(text, bytes)) {
        return bytes;
    }
    std::size_t units = 0;
    const bool valid = decode(text, [&units](wchar_t character) {
        units += unitsOf(character);
        return true;
    });
    return valid ? units : unconvertible;
}

std::size_t widen(const char* text, wchar16* out, std::size_t capacity) {
    const std::size_t bytes = std::strlen(text);
    if (isAscii(text, bytes)) {
        const std::size_t units = std::min(bytes, capacity);
        std::copy_n(text, units, out);
        return units;
    }
    std::size_t written = 0;
    const bool valid = decode(text, [&](wchar_t character) {
        const std::size_t units = unitsOf(character);
        if (units > capacity - written) {
            return false;
        }
        const auto value = static_cast<char32_t>(character);
        if (units == 2) {
            out[written] = zvSurrogate::highOf(value);
            out[written + 1] = zvSurrogate::lowOf(value);
        } else {
            out[written] = static_cast<wchar16>(value);
        }
        written += units;
        return true;
    });
    return valid ? written : 0;
}

std::size_t narrowLength(const wchar16* text, std::size_t length) {
    if (isAscii(text, length)) {
        return length;
    }
    std::size_t bytes = 0;
    const bool valid = encode(text, length, [&bytes](const char*, std::size_t count) { bytes += count; });
    return valid ? bytes : unconvertible;
}

void narrow(const wchar16* text, std::size_t length, char* out) {
    if (isAscii(text, length)) {
        std::transform(text, text + length, out, [](wchar16 unit) { return static_cast<char>(unit); });
        return;
    }
    encode(text, length,
           [&out](const char* bytes, std::size_t count) { out = std::copy_n(bytes, count, out); });
}

}  // namespace zvTextCodec
