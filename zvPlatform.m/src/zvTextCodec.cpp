#include "zvTextCodec.h"

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>

#include "zvSurrogate.h"

namespace zvTextCodec {
namespace {

constexpr char32_t lastCharacter = 0x10FFFF;  // some runtimes decode to values beyond it
constexpr bool unitsAreWideCharacters = sizeof(wchar_t) == sizeof(wchar16);

std::atomic<bool> adoptedUtf8{false};

// Whether narrow text is UTF-8: adopted, or the locale's encoding, tested by decoding one character.
bool isUtf8() {
    if (adoptedUtf8.load(std::memory_order_relaxed)) {
        return true;
    }
    constexpr char euro[] = "\xE2\x82\xAC";
    std::mbstate_t state{};
    wchar_t character = 0;
    return !unitsAreWideCharacters &&
           std::mbrtowc(&character, euro, sizeof(euro) - 1, &state) == sizeof(euro) - 1 &&
           character == L'\u20AC';
}

// Calls `put` with every UTF-16 code unit of `text`; false for malformed UTF-8. Never reads past the first
// byte that is not a continuation byte, at the latest the terminator.
template <typename Put>
bool decodeUtf8(const char* text, Put put) {
    for (;;) {
        unsigned lead = static_cast<unsigned char>(*text);
        while (lead > 0 && lead < 0x80) {
            put(static_cast<wchar16>(lead));
            lead = static_cast<unsigned char>(*++text);
        }
        if (lead == 0) {
            return true;
        }
        // Below 0x40 for a continuation byte.
        const auto tail = [text](std::size_t i) { return static_cast<unsigned char>(text[i]) ^ 0x80u; };
        if (lead < 0xC2 || lead > 0xF4 || tail(1) > 0x3F) {
            return false;
        }
        if (lead < 0xE0) {
            put(static_cast<wchar16>((lead & 0x1Fu) << 6 | tail(1)));
            text += 2;
            continue;
        }
        if (tail(2) > 0x3F) {
            return false;
        }
        if (lead < 0xF0) {
            const unsigned character = (lead & 0x0Fu) << 12 | tail(1) << 6 | tail(2);
            if (character < 0x800 || zvSurrogate::isAny(static_cast<wchar16>(character))) {
                return false;
            }
            put(static_cast<wchar16>(character));
            text += 3;
            continue;
        }
        const unsigned character = (lead & 0x07u) << 18 | tail(1) << 12 | tail(2) << 6 | tail(3);
        if (tail(3) > 0x3F || character < 0x10000 || character > lastCharacter) {
            return false;
        }
        put(zvSurrogate::highOf(character));
        put(zvSurrogate::lowOf(character));
        text += 4;
    }
}

// Writes `text` as UTF-8 and returns the number of bytes written. `lone` replaces a lone surrogate; if it is
// 0, text with a lone surrogate is `unconvertible`.
std::size_t encodeUtf8(const wchar16* text, std::size_t length, char* out, char32_t lone) {
    const wchar16* const end = text + length;
    char* next = out;
    while (text != end) {
        const wchar16 unit = *text++;
        char32_t character = unit;
        const auto tail = [&character](int shift) {
            return static_cast<char>(0x80u | ((character >> shift) & 0x3Fu));
        };
        if (character < 0x80) {
            next[0] = static_cast<char>(character);
            next += 1;
            continue;
        }
        if (character < 0x800) {
            next[0] = static_cast<char>(0xC0u | character >> 6);
            next[1] = tail(0);
            next += 2;
            continue;
        }
        if (zvSurrogate::isAny(unit)) {
            const bool isPair = text != end && zvSurrogate::isHigh(unit) && zvSurrogate::isLow(*text);
            if (!isPair && lone == 0) {
                return unconvertible;
            }
            character = isPair ? zvSurrogate::join(unit, *text++) : lone;
        }
        if (character < 0x10000) {
            next[0] = static_cast<char>(0xE0u | character >> 12);
            next[1] = tail(6);
            next[2] = tail(0);
            next += 3;
        } else {
            next[0] = static_cast<char>(0xF0u | character >> 18);
            next[1] = tail(12);
            next[2] = tail(6);
            next[3] = tail(0);
            next += 4;
        }
    }
    return static_cast<std::size_t>(next - out);
}

// Calls `take` with every wide character of `text` until it returns false; false for invalid text.
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

// The sum of `count(i)`, at most 2 each, over all positions below `length`. Summed in blocks whose sums fit
// 16 bits, so that the compiler can vectorise the loop.
template <typename Count>
std::size_t sumOf(std::size_t length, Count count) {
    constexpr std::size_t longestBlock = 0x4000;
    std::size_t sum = 0;
    for (std::size_t start = 0; start < length; start += longestBlock) {
        const std::size_t end = std::min(length, start + longestBlock);
        std::uint16_t blockSum = 0;
        for (std::size_t i = start; i < end; ++i) {
            blockSum = static_cast<std::uint16_t>(blockSum + count(i));
        }
        sum += blockSum;
    }
    return sum;
}

// The length of `text` in UTF-8; `unconvertible` if it has a lone surrogate. Each half of a pair counts for
// two bytes.
std::size_t utf8Length(const wchar16* text, std::size_t length) {
    const std::size_t further = sumOf(
        length, [text](std::size_t i) { return (text[i] >= 0x80 ? 1 : 0) + (text[i] >= 0x800 ? 1 : 0); });
    const std::size_t surrogates =
        sumOf(length, [text](std::size_t i) { return zvSurrogate::isAny(text[i]) ? 1 : 0; });
    const std::size_t pairs = surrogates == 0 ? 0 : sumOf(length - 1, [text](std::size_t i) {
        return static_cast<int>(zvSurrogate::isHigh(text[i])) &
               static_cast<int>(zvSurrogate::isLow(text[i + 1]));
    });
    return 2 * pairs == surrogates ? length + further - surrogates : unconvertible;
}

// Calls `take` with the bytes of every character of `text`; false for text that the locale cannot encode.
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

void adoptUtf8() { adoptedUtf8 = true; }

bool isUtf8Adopted() { return adoptedUtf8; }

std::size_t wideLength(const char* text) {
    const std::size_t bytes = std::strlen(text);
    if (isAscii(text, bytes)) {
        return bytes;
    }
    std::size_t units = 0;
    if (isUtf8() && decodeUtf8(text, [&units](wchar16) { ++units; })) {
        return units;
    }
    units = 0;
    const bool valid = !isUtf8Adopted() && decode(text, [&units](wchar_t character) {
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
    const auto put = [&written, out, capacity](wchar16 unit) {
        if (written != capacity) {
            out[written] = unit;
            ++written;
        }
    };
    if (isUtf8() && decodeUtf8(text, put)) {
        // Never half a surrogate pair: drop a high one at the end of the capacity.
        return written > 0 && zvSurrogate::isHigh(out[written - 1]) ? written - 1 : written;
    }
    written = 0;
    const bool valid = !isUtf8Adopted() && decode(text, [&](wchar_t character) {
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
    if (isUtf8()) {
        return utf8Length(text, length);
    }
    std::size_t bytes = 0;
    const bool valid = encode(text, length, [&bytes](const char*, std::size_t count) { bytes += count; });
    return valid ? bytes : unconvertible;
}

std::size_t longestUnit() {
    constexpr std::size_t longestInUtf8 = 3;
    return isUtf8Adopted() ? longestInUtf8 : MB_CUR_MAX;
}

std::size_t narrow(const wchar16* text, std::size_t length, char* out) {
    if (isAscii(text, length)) {
        std::transform(text, text + length, out, [](wchar16 unit) { return static_cast<char>(unit); });
        return length;
    }
    if (isUtf8()) {
        return encodeUtf8(text, length, out, 0);
    }
    std::size_t written = 0;
    const bool valid = encode(text, length, [&written, out](const char* bytes, std::size_t count) {
        std::copy_n(bytes, count, out + written);
        written += count;
    });
    return valid ? written : unconvertible;
}

std::size_t toUtf8(const wchar16* text, std::size_t length, char* out) {
    constexpr char32_t replacement = 0xFFFD;
    return encodeUtf8(text, length, out, replacement);
}

std::size_t fromUtf8(const char* text, wchar16* out) {
    std::size_t units = 0;
    return decodeUtf8(text, [&](wchar16 unit) { out[units++] = unit; }) ? units : unconvertible;
}

std::size_t nextSeparator(std::string_view path, std::size_t from) {
    if (isUtf8Adopted()) {
        return path.find_first_of("\\/", from);
    }
    std::size_t at = from;
    while (at < path.size()) {
        const char first = path[at];
        if (first == '\\' || first == '/') {
            return at;
        }
        std::size_t bytes = 1;
        if (static_cast<unsigned char>(first) >= 0x80U) {
            std::mbstate_t state{};
            const std::size_t used = std::mbrlen(path.data() + at, path.size() - at, &state);
            bytes = used > path.size() - at ? 1 : std::max<std::size_t>(used, 1);
        }
        at += bytes;
    }
    return std::string_view::npos;
}

std::size_t lastSeparator(std::string_view path) {
    if (isUtf8Adopted() || isAscii(path.data(), path.size())) {
        return path.find_last_of("\\/");
    }
    std::size_t last = std::string_view::npos;
    for (std::size_t at = nextSeparator(path, 0); at != std::string_view::npos;
         at = nextSeparator(path, at + 1)) {
        last = at;
    }
    return last;
}

}  // namespace zvTextCodec
