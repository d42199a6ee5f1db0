#include "zvString.h"

#include <algorithm>
#include <cctype>
#include <cwctype>
#include <string>

#include "zvStringBuffer.h"
#include "zvTextCodec.h"

namespace {

wchar16 toLowerUnit(wchar16 unit) { return static_cast<wchar16>(std::towlower(unit)); }
wchar16 toUpperUnit(wchar16 unit) { return static_cast<wchar16>(std::towupper(unit)); }
char toLowerByte(char byte) { return static_cast<char>(std::tolower(static_cast<unsigned char>(byte))); }
char toUpperByte(char byte) { return static_cast<char>(std::toupper(static_cast<unsigned char>(byte))); }

// Whether the locale maps the letters of ASCII among themselves: Turkish ones do not.
bool foldsAsciiPlainly() { return std::towlower(L'I') == L'i' && std::towupper(L'i') == L'I'; }

bool isAscii(const wchar16* text, int length) {
    return zvTextCodec::isAscii(text, static_cast<std::size_t>(length));
}

template <wchar16 First>
wchar16 otherCaseOf(wchar16 unit) {
    const auto letter = static_cast<wchar16>(unit - First);
    return static_cast<wchar16>(unit ^ (letter < 26 ? 0x20 : 0));
}

void lower(wchar16* text, int length) {
    const bool isPlain = isAscii(text, length) && foldsAsciiPlainly();
    std::transform(text, text + length, text, isPlain ? otherCaseOf<u'A'> : toLowerUnit);
}

// A new buffer with `convert` applied to every character of `text`.
template <typename Character, typename Convert>
Character* converted(const Character* text, Convert convert) {
    if (text == nullptr) {
        return nullptr;
    }
    const std::size_t length = std::char_traits<Character>::length(text);
    auto* const copy = zvStringBuffer::allocate<Character>(length + 1);
    if (copy != nullptr) {
        std::transform(text, text + length, copy, convert);
        copy[length] = 0;
    }
    return copy;
}

}  // namespace

bool zvString::equalsIgnoreCase(const zvString& other) const {
    if (m_length != other.m_length) {
        return false;
    }
    if (isAscii(m_pBuffer, m_length) && isAscii(other.m_pBuffer, m_length) && foldsAsciiPlainly()) {
        unsigned difference = 0;
        for (int i = 0; i < m_length; ++i) {
            difference |= static_cast<unsigned>(otherCaseOf<u'A'>(m_pBuffer[i]) ^
                                                otherCaseOf<u'A'>(other.m_pBuffer[i]));
        }
        return difference == 0;
    }
    return std::equal(m_pBuffer, m_pBuffer + m_length, other.m_pBuffer, [](wchar16 left, wchar16 right) {
        return left == right || toLowerUnit(left) == toLowerUnit(right);
    });
}

void zvString::toLower() {
    _clearCache();
    lower(m_pBuffer, m_length);
}

void zvString::toUpper() {
    _clearCache();
    std::transform(m_pBuffer, m_pBuffer + m_length, m_pBuffer, toUpperUnit);
}

char* zvString::convertToLowerCase(const char* text) { return converted(text, toLowerByte); }
char* zvString::convertToUpperCase(const char* text) { return converted(text, toUpperByte); }
wchar16* zvString::convertToLowerCase(const wchar16* text) { return converted(text, toLowerUnit); }
wchar16* zvString::convertToUpperCase(const wchar16* text) { return converted(text, toUpperUnit); }
