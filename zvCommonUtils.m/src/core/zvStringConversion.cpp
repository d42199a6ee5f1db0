#include "zvString.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <string>

#include "zvStringBuffer.h"
#include "zvTextCodec.h"

namespace {

using zvStringBuffer::allocate;
using zvStringBuffer::lengthOf;
using zvStringBuffer::longestText;

// The narrow form of `length` units, or null; `bytes` is its length.
char* narrowed(const wchar16* text, int length, int& bytes) {
    bytes = 0;
    const auto units = static_cast<std::size_t>(length);
    // A usual text is converted once, to be measured and copied, which is faster than measuring it by a
    // conversion.
    constexpr std::size_t usualSize = 8192;
    char usual[usualSize];
    const bool isUsual = units * zvTextCodec::longestUnit() <= usualSize;
    const std::size_t needed =
        isUsual ? zvTextCodec::narrow(text, units, usual) : zvTextCodec::narrowLength(text, units);
    if (needed == 0 || needed > longestText) {  // as `unconvertible` is
        return nullptr;
    }
    char* const narrow = allocate<char>(needed + 1);
    if (narrow == nullptr) {
        return nullptr;
    }
    if (isUsual) {
        std::copy_n(usual, needed, narrow);
    } else {
        zvTextCodec::narrow(text, units, narrow);
    }
    narrow[needed] = '\0';
    bytes = static_cast<int>(needed);
    return narrow;
}

}  // namespace

const char* zvString::getChars() const {
    if (m_pNarrowCache == nullptr) {
        m_pNarrowCache = narrowCopy();
        m_bCacheUnchanged = true;
    }
    return m_pNarrowCache;
}

char* zvString::narrowCopy() const {
    int bytes = 0;
    return m_pBuffer == nullptr ? nullptr : narrowed(m_pBuffer, m_length, bytes);
}

char zvString::getCharAt(int i) const {
    const char* const narrow = getChars();
    return narrow == nullptr ? '\0' : narrow[i];
}

int zvString::convertStringToUnicode(const char* text, int n, wchar16*& out) {
    out = nullptr;
    if (text == nullptr || n < 1) {
        return 0;
    }
    constexpr std::size_t usualLength = 2048;
    const std::size_t bytes = std::char_traits<char>::length(text);
    if (bytes <= usualLength && bytes <= static_cast<std::size_t>(n)) {
        // Converted once, to be measured and copied, which is faster than measuring it by a conversion.
        wchar16 usual[usualLength];
        const std::size_t units = zvTextCodec::widen(text, usual, usualLength);
        out = units == 0 ? nullptr : allocate<wchar16>(units + 1);
        if (out == nullptr) {
            return 0;
        }
        *std::copy_n(usual, units, out) = 0;
        return static_cast<int>(units);
    }
    const std::size_t needed = zvTextCodec::wideLength(text);
    if (needed == 0 || needed == zvTextCodec::unconvertible || needed > longestText) {
        return 0;
    }
    out = allocate<wchar16>(needed + 1);
    if (out == nullptr) {
        return 0;
    }
    const std::size_t written = zvTextCodec::widen(text, out, std::min(needed, static_cast<std::size_t>(n)));
    out[written] = 0;
    return static_cast<int>(written);
}

wchar16* zvString::convertStringToUnicode(const char* text) {
    wchar16* wide = nullptr;
    convertStringToUnicode(text, INT_MAX, wide);
    return wide;
}

int zvString::convertUnicodeToString(const wchar16* text, int n, char*& out) {
    out = nullptr;
    int bytes = 0;
    if (text != nullptr && n > 0) {
        out = narrowed(text, lengthOf(text, n), bytes);
    }
    return bytes;
}

int zvString::convertUnicodeToString(const wchar16* text, char*& out) {
    return convertUnicodeToString(text, INT_MAX, out);
}

char* zvString::convertUnicodeToString(const wchar16* text) {
    char* narrow = nullptr;
    convertUnicodeToString(text, narrow);
    return narrow;
}
