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

// Whether the locale's multibyte texts are UTF-8, asked of the runtime by a character that tells.
bool isUtf8Locale() {
    constexpr char euro[] = "\xE2\x82\xAC";
    std::mbstate_t state{};
    wchar_t character = 0;
    return !unitsAreWideCharacters &&
           std::mbrtowc(&character, euro, sizeof(euro) - 1, &state) == sizeof(euro) - 1 &&
           character == L'\u20AC';
}

bool isContinuation(unsigned char byte) { return (byte & 0xC0u) == 0x80u; }

// Reads one character of well-formed UTF-8 and returns its length; 0 for whatever only the runtime can judge.
inline std::size_t readUtf8(const char* text, const char* end, wchar_t& character) {
    const auto byte = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto tail = [&byte](std::size_t i) { return static_cast<char32_t>(byte(i) & 0x3Fu); };
    const auto left = static_cast<std::size_t>(end - text);
    const char32_t lead = byte(0);
    if (lead < 0x80) {
        character = static_cast<wchar_t>(lead);
        return 1;
    }
    char32_t value = lead;
    std::size_t length = 0;
    if (lead >= 0xC2 && lead < 0xE0 && left >= 2 && isContinuation(byte(1))) {
        value = (lead & 0x1Fu) << 6 | tail(1);
        length = 2;
    } else if (lead >= 0xE0 && lead < 0xF0 && left >= 3 && isContinuation(byte(1)) &&
               isContinuation(byte(2))) {
        value = (lead & 0x0Fu) << 12 | tail(1) << 6 | tail(2);
        length = value >= 0x800 && (value < 0xD800 || value > 0xDFFF) ? 3 : 0;
    } else if (lead >= 0xF0 && lead < 0xF5 && left >= 4 && isContinuation(byte(1)) &&
               isContinuation(byte(2)) && isContinuation(byte(3))) {
        value = (lead & 0x07u) << 18 | tail(1) << 12 | tail(2) << 6 | tail(3);
        length = value >= 0x10000 && value <= 0x10FFFF ? 4 : 0;
    }
    character = static_cast<wchar_t>(value);
    return length;
}

// Writes one character in UTF-8, no lone surrogate, and returns its length.
std::size_t writeUtf8(char32_t character, char* bytes) {
    const auto tail = [character](int shift) {
        return static_cast<char>(0x80u | ((character >> shift) & 0x3Fu));
    };
    if (character < 0x80) {
        bytes[0] = static_cast<char>(character);
        return 1;
    }
    if (character < 0x800) {
        bytes[0] = static_cast<char>(0xC0u | character >> 6);
        bytes[1] = tail(0);
        return 2;
    }
    if (character < 0x10000) {
        bytes[0] = static_cast<char>(0xE0u | character >> 12);
        bytes[1] = tail(6);
        bytes[2] = tail(0);
        return 3;
    }
    bytes[0] = static_cast<char>(0xF0u | character >> 18);
    bytes[1] = tail(12);
    bytes[2] = tail(6);
    bytes[3] = tail(0);
    return 4;
}

// Hands every wide character of `text` to `take` until that answers false; false for invalid text.
template <typename Take>
bool decode(const char* text, Take take) {
    std::mbstate_t state{};
    const bool isUtf8 = isUtf8Locale();
    const char* const end = text + std::strlen(text);
    while (text != end) {
        wchar_t character = 0;
        const std::size_t quick = isUtf8 ? readUtf8(text, end, character) : 0;
        if (quick > 0) {
            if (!take(character)) {
                return true;
            }
            text += quick;
            continue;
        }
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

// The bytes of `text` in UTF-8; `unconvertible` when it has a lone surrogate. A pair's halves count for two
// bytes each.
std::size_t utf8Length(const wchar16* text, std::size_t length) {
    std::size_t bytes = length;
    std::size_t surrogates = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const unsigned unit = text[i];
        bytes += (unit >= 0x80 ? 1u : 0u) + (unit >= 0x800 ? 1u : 0u);
        surrogates += (unit & 0xF800u) == 0xD800u ? 1u : 0u;
    }
    std::size_t paired = 0;
    for (std::size_t i = 0; surrogates > paired && i + 1 < length; ++i) {
        if (zvSurrogate::isHigh(text[i]) && zvSurrogate::isLow(text[i + 1])) {
            paired += 2;
            ++i;
        }
    }
    return paired == surrogates ? bytes - surrogates : unconvertible;
}

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
    if (isUtf8Locale()) {
        return utf8Length(text, length);
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
    if (isUtf8Locale()) {
        for (std::size_t i = 0; i < length; ++i) {
            const bool isPair =
                i + 1 < length && zvSurrogate::isHigh(text[i]) && zvSurrogate::isLow(text[i + 1]);
            out += writeUtf8(isPair ? zvSurrogate::join(text[i], text[i + 1]) : char32_t{text[i]}, out);
            i += isPair ? 1 : 0;
        }
        return;
    }
    encode(text, length,
           [&out](const char* bytes, std::size_t count) { out = std::copy_n(bytes, count, out); });
}

}  // namespace zvTextCodec
