#include "zvTextBuilder.h"

#include <algorithm>
#include <climits>

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

zvTextBuilder& zvTextBuilder::append(int number) { return append(zvString(number)); }

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
    return {m_text.data(), static_cast<int>(std::min<std::size_t>(m_text.size(), INT_MAX - 1))};
}
