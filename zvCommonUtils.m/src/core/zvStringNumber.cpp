#include "zvString.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <memory>
#include <new>

#include "zvPlatform.h"

namespace {

// No locale has a space among ASCII's visible characters.
bool isSpace(wchar16 unit) { return (unit <= u' ' || unit > u'~') && std::iswspace(unit) != 0; }

// A decimal that needs no rounding but that of one division; false for every other text.
bool readPlainNumber(const wchar16* text, std::size_t length, double& number) {
    constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr std::size_t mostDigits = 15;
    if (length == 0 || length > mostDigits) {
        return false;
    }
    long long digits = 0;
    std::size_t decimals = 0;
    bool hasPoint = false;
    for (std::size_t i = 0; i < length; ++i) {
        if (text[i] >= u'0' && text[i] <= u'9') {
            digits = digits * 10 + (text[i] - u'0');
            decimals += hasPoint ? 1 : 0;
        } else if (text[i] == u'.' && !hasPoint && i > 0) {
            hasPoint = true;
        } else {
            return false;
        }
    }
    if (hasPoint && std::strcmp(zvPlatform::decimalPoint(), ".") != 0) {
        return false;
    }
    number = static_cast<double>(digits) / powers[decimals];
    return true;
}

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

bool zvString::toBoolean() const { return equalsIgnoreCase("true") || equalsIgnoreCase("1"); }

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
    const wchar16* const number = skipWhiteSpace(text.m_pBuffer);
    const std::size_t length = numberLength(number);
    double plain = 0.0;
    if (readPlainNumber(number, length, plain)) {
        return plain;
    }
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
