#include "zvTextBuilder.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <new>

#include "zvTextCodec.h"

zvTextBuilder& zvTextBuilder::append(const zvString& piece) { return append(piece.data(), piece.size()); }

zvTextBuilder& zvTextBuilder::append(const char* piece) {
    const std::size_t units = zvTextCodec::wideLength(piece);
    if (units != zvTextCodec::unconvertible) {
        const std::size_t end = m_text.size();
        m_text.resize(end + units);
        zvTextCodec::widen(piece, m_text.data() + end, units);
    }
    return *this;
}

zvTextBuilder& zvTextBuilder::append(int number) {
    constexpr std::size_t capacity = 16;
    char digits[capacity];
    char* const end = std::to_chars(digits, digits + capacity, number).ptr;
    m_text.append(&digits[0], end);
    return *this;
}

zvTextBuilder& zvTextBuilder::append(wchar16 unit) {
    m_text += unit;
    return *this;
}

zvTextBuilder& zvTextBuilder::append(const wchar16* piece, int length) {
    if (length > 0) {
        m_text.append(piece, static_cast<std::size_t>(length));
    }
    return *this;
}

zvString zvTextBuilder::toString() const {
    zvString text(m_text.data(), static_cast<int>(std::min<std::size_t>(m_text.size(), INT_MAX - 1)));
    if (text.empty() && !m_text.empty() && m_text.front() != 0) {
        throw std::bad_alloc();
    }
    return text;
}
