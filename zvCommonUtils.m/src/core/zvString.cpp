#include "zvString.h"

#include <algorithm>
#include <climits>
#include <cwctype>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "zvStringBuffer.h"

using zvStringBuffer::allocate;
using zvStringBuffer::lengthOf;
using zvStringBuffer::longestText;

zvString::zvString() = default;

zvString::zvString(const zvString& other) { assign(other.m_pBuffer, other.m_length); }

zvString::zvString(zvString&& other) noexcept
    : m_pBuffer(other.m_pBuffer),
      m_length(other.m_length),
      m_capacity(other.m_capacity),
      m_bCacheUnchanged(other.m_bCacheUnchanged),
      m_pNarrowCache(other.m_pNarrowCache) {
    other.init();
}

zvString::zvString(const char* text) { set(text); }

zvString::zvString(const char* text, int n) { set(text, n); }

zvString::zvString(const wchar16* text) { setW(text); }

zvString::zvString(const wchar16* text, int n) { setW(text, n); }

zvString::zvString(const char16_t* text) {
    if (text != nullptr) {
        assign(text, lengthOf(text));
    }
}

zvString::zvString(const char16_t* text, int n) {
    if (text != nullptr && n > 0) {
        assign(text, lengthOf(text, n));
    }
}

zvString::zvString(char c) {
    const char text[] = {c, '\0'};
    set(text);
}

zvString::zvString(wchar16 c) { setW(&c, 1); }

zvString::zvString(char16_t c) : zvString(static_cast<wchar16>(c)) {}

// Few strings have a narrow copy and many have no buffer: the test spares most of the calls.
zvString::~zvString() {
    if (m_pBuffer != nullptr) {
        ::operator delete(m_pBuffer);
    }
    if (m_pNarrowCache != nullptr) {
        ::operator delete(m_pNarrowCache);
    }
}

void zvString::init() {
    m_pBuffer = nullptr;
    m_length = 0;
    m_capacity = 0;
    m_bCacheUnchanged = true;
    m_pNarrowCache = nullptr;
}

void zvString::_clearCache() {
    m_bCacheUnchanged = false;
    if (m_pNarrowCache != nullptr) {
        releaseString(m_pNarrowCache);
    }
}

// Takes `buffer`, which holds `length` characters in an exact fit, in the place of the present one.
bool zvString::adopt(wchar16* buffer, int length) {
    if (buffer == nullptr) {
        return false;
    }
    ::operator delete(m_pBuffer);
    m_pBuffer = buffer;
    m_pBuffer[length] = 0;
    m_length = length;
    m_capacity = length + 1;
    return true;
}

void zvString::set(const char* text) {
    wchar16* wide = nullptr;
    const int length = convertStringToUnicode(text, INT_MAX, wide);
    if (wide != nullptr) {
        adopt(wide, length);
    }
}

void zvString::set(const char* text, int n) {
    if (text == nullptr || n < 1) {
        return;
    }
    const char* const end = std::char_traits<char>::find(text, static_cast<std::size_t>(n), '\0');
    const std::size_t bytes =
        end == nullptr ? static_cast<std::size_t>(n) : static_cast<std::size_t>(end - text);
    const std::unique_ptr<char[]> piece(new (std::nothrow) char[bytes + 1]);
    if (piece != nullptr) {
        std::copy_n(text, bytes, piece.get());
        piece[bytes] = '\0';
        set(piece.get());
    }
}

void zvString::setW(const wchar16* text) {
    if (text != nullptr) {
        setW(text, lengthOf(text));
    }
}

void zvString::setW(const wchar16* text, int n) {
    if (text != nullptr && n > 0) {
        assign(text, lengthOf(text, n));
    }
}

template <typename Unit>
void zvString::assign(const Unit* text, int length) {
    if (length == 0) {
        return;
    }
    if (m_capacity <= length && !adopt(allocate<wchar16>(static_cast<std::size_t>(length) + 1), length)) {
        return;
    }
    std::copy_n(text, length, m_pBuffer);
    m_pBuffer[length] = 0;
    m_length = length;
}

void zvString::addTail(const char* text, int n) {
    const zvString wide(text, n);
    extend(wide.m_pBuffer, wide.m_length);
}

void zvString::addTailW(const wchar16* text, int n) {
    if (text != nullptr && n > 0) {
        extend(text, lengthOf(text, n));
    }
}

void zvString::extend(const wchar16* text, int tail) {
    if (tail == 0 || tail > static_cast<int>(longestText) - m_length) {
        return;
    }
    const int length = m_length + tail;
    if (m_capacity > length) {
        std::copy_n(text, tail, m_pBuffer + m_length);
        m_pBuffer[length] = 0;
        m_length = length;
        return;
    }
    auto* const buffer = allocate<wchar16>(static_cast<std::size_t>(length) + 1);
    if (buffer != nullptr) {
        std::copy_n(m_pBuffer, m_length, buffer);
        std::copy_n(text, tail, buffer + m_length);
        adopt(buffer, length);
    }
}

zvString& zvString::operator=(const zvString& other) {
    if (this != &other) {
        reset();
        assign(other.m_pBuffer, other.m_length);
    }
    return *this;
}

// The text may be in this buffer: it is measured before anything is written.
void zvString::assignUnits(const char16_t* text) {
    const int length = text == nullptr ? 0 : lengthOf(text);
    if (length == 0) {
        reset();
        return;
    }
    _clearCache();
    assign(text, length);
}

void zvString::swap(zvString& other) noexcept {
    std::swap(m_pBuffer, other.m_pBuffer);
    std::swap(m_length, other.m_length);
    std::swap(m_capacity, other.m_capacity);
    std::swap(m_bCacheUnchanged, other.m_bCacheUnchanged);
    std::swap(m_pNarrowCache, other.m_pNarrowCache);
}

zvString& zvString::append(const zvString& other) {
    _clearCache();
    extend(other.m_pBuffer, other.m_length);
    return *this;
}

zvString& zvString::operator+=(const zvString& other) { return append(other); }

zvString& zvString::operator+=(wchar16 c) {
    _clearCache();
    addTailW(&c, 1);
    return *this;
}

zvString& zvString::operator+=(char16_t c) { return *this += static_cast<wchar16>(c); }

zvString& zvString::operator+=(char c) { return append(zvString(c)); }

zvString& zvString::operator+=(const char* text) { return append(zvString(text)); }

bool zvString::insert(const zvString& s, int pos) {
    _clearCache();
    if (&s == this || s.empty() || pos < 0 || pos > m_length) {
        return false;
    }
    if (empty()) {
        *this = s;
        return !empty();
    }
    if (pos == m_length) {
        append(s);
        return m_length > pos;
    }
    if (s.m_length > static_cast<int>(longestText) - m_length) {
        return false;
    }
    const int length = m_length + s.m_length;
    wchar16* buffer = m_pBuffer;
    if (m_capacity <= length) {
        buffer = allocate<wchar16>(static_cast<std::size_t>(length) + 1);
        if (buffer == nullptr) {
            return false;
        }
        std::copy_n(m_pBuffer, pos, buffer);
    }
    // Lowest position first on purpose: in place, a long tail reads what it has just written.
    for (int i = pos; i < m_length; ++i) {
        buffer[i + s.m_length] = m_pBuffer[i];
    }
    std::copy_n(s.m_pBuffer, s.m_length, buffer + pos);
    if (buffer != m_pBuffer) {
        return adopt(buffer, length);
    }
    m_pBuffer[length] = 0;
    m_length = length;
    return true;
}

zvString zvString::substr(int pos, int n) const {
    zvString piece;
    if (pos >= 0 && pos < m_length && n > 0) {
        piece.assign(m_pBuffer + pos, std::min(n, m_length - pos));
    }
    return piece;
}

void zvString::trim() {
    _clearCache();
    if (empty()) {
        return;
    }
    const auto isText = [](wchar16 unit) { return std::iswspace(unit) == 0; };
    const wchar16* const first = std::find_if(m_pBuffer, m_pBuffer + m_length, isText);
    const wchar16* last = m_pBuffer + m_length;
    while (last != first && !isText(last[-1])) {
        --last;
    }
    m_length = static_cast<int>(last - first);
    std::copy(first, last, m_pBuffer);
    m_pBuffer[m_length] = 0;
}

void zvString::reverse() {
    _clearCache();
    std::reverse(m_pBuffer, m_pBuffer + m_length);
}

void zvString::clear() {
    _clearCache();
    releaseUnicode(m_pBuffer);
    m_length = 0;
    m_capacity = 0;
}

void zvString::reset() {
    _clearCache();
    if (m_pBuffer != nullptr) {
        *m_pBuffer = 0;
    }
    m_length = 0;
}

void zvString::releaseString(char*& text) {
    ::operator delete(text);
    text = nullptr;
}

void zvString::releaseUnicode(wchar16*& text) {
    ::operator delete(text);
    text = nullptr;
}

zvString operator+(const zvString& left, const zvString& right) {
    zvString sum(left);
    sum += right;
    return sum;
}

zvString operator+(const zvString& left, const char* right) { return left + zvString(right); }
zvString operator+(const zvString& left, char right) { return left + zvString(right); }
zvString operator+(const char* left, const zvString& right) { return zvString(left) + right; }
