#include "zvString.h"

#include <algorithm>
#include <climits>
#include <cwchar>
#include <cwctype>
#include <memory>
#include <new>

#include "zvPlainNumber.h"

namespace {

// No locale has a space among ASCII's visible characters.
bool isSpace(wchar16 unit) { return (unit <= u' ' || unit > u'~') && std::iswspace(unit) != 0; }

// The length of the number's text: up to the white space behind it, which is all that can be told cheaply.
std::size_t numberLength(const wchar16* text) {
    std::size_t length = 0;
    while (text[length] != 0 && !isSpace(text[length])) {
        ++length;
    }
    return length;
}

const wchar16* skipWhiteSpace(const wchar16* text) {
    while (isSpace(*text)) {
        ++text;
    }
    return text;
}

// Formats into the 64 wide characters that a number gets. For one that needs more, the runtimes answer -1 or
// the number of characters that it needs: either way there is no text.
template <typename Number>
zvString formatted(const wchar_t* format, Number value) {
    constexpr std::size_t capacity = 64;
    wchar_t text[capacity];
    const int length = std::swprintf(text, capacity, format, value);
    wchar16 units[capacity];
    if (length < 0 || static_cast<std::size_t>(length) >= capacity) {
        return {};
    }
    for (int i = 0; i < length; ++i) {
        units[i] = static_cast<wchar16>(text[i]);
    }
    return {units, length};
}

}  // namespace

zvString::zvString(bool b) : zvString(b ? "True" : "False") {}

zvString::zvString(int v) : zvString(formatted(L"%d", v)) {}

zvString::zvString(long v) : zvString(formatted(L"%li", v)) {}

zvString::zvString(double v) : zvString(formatted(L"%lf", v)) {}

bool zvString::toBoolean() const {
    return m_length == 1 ? *m_pBuffer == u'1' : m_length == 4 && equalsIgnoreCase("true");
}

int zvString::convertUnicodeToInt(const zvString& text) {
    if (text.empty()) {
        return 0;
    }
    const wchar16* digit = skipWhiteSpace(text.m_pBuffer);
    const bool negative = *digit == u'-';
    if (negative || *digit == u'+') {
        ++digit;
    }
    // The home platform's numbers have 32 bits; a wider runtime must not tell other results.
    const long long limit = negative ? -static_cast<long long>(INT_MIN) : INT_MAX;
    long long value = 0;
    for (; *digit >= u'0' && *digit <= u'9'; ++digit) {
        value = std::min(limit, value * 10 + (*digit - u'0'));
    }
    return static_cast<int>(negative ? -value : value);
}

long zvString::convertUnicodeToLong(const zvString& text) { return convertUnicodeToInt(text); }

double zvString::convertUnicodeToDouble(const zvString& text) {
    if (text.empty()) {
        return 0.0;
    }
    const zvPlainNumber plain(text.m_pBuffer, static_cast<std::size_t>(text.m_length));
    if (plain.isPlain() && (!plain.hasPoint() || zvPlainNumber::isPointOfLocale())) {
        return plain.value();
    }
    const wchar16* const number = skipWhiteSpace(text.m_pBuffer);
    const std::size_t length = numberLength(number);
    constexpr std::size_t usualLength = 64;
    wchar_t usual[usualLength];
    std::unique_ptr<wchar_t[]> unusual;
    wchar_t* wide = usual;
    if (length >= usualLength) {
        unusual.reset(new (std::nothrow) wchar_t[length + 1]);
        wide = unusual.get();
    }
    if (wide == nullptr) {
        return 0.0;
    }
    std::copy_n(number, length, wide);
    wide[length] = L'\0';
    return std::wcstod(wide, nullptr);
}

bool zvString::convertUnicodeToBool(const zvString& text) { return convertUnicodeToInt(text) != 0; }
