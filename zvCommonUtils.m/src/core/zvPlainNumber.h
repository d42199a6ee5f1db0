#ifndef ZV_PLAIN_NUMBER_H
#define ZV_PLAIN_NUMBER_H

#include <cstddef>
#include <cstring>

#include "zvPlatform.h"
#include "zvTypes.h"

/// A text that is a decimal of a few digits, with or without a point and a minus: its number needs no
/// rounding but that of one division.
class zvPlainNumber {
public:
    zvPlainNumber(const wchar16* text, std::size_t length) {
        const std::size_t first = length > 0 && text[0] == u'-' ? 1 : 0;
        m_bNegative = first == 1;
        m_bPlain = length > first && length - first <= mostDigits;
        for (std::size_t i = first; i < length && m_bPlain; ++i) {
            if (text[i] >= u'0' && text[i] <= u'9') {
                m_digits = m_digits * 10 + (text[i] - u'0');
                m_decimals += m_bPoint ? 1 : 0;
            } else {
                m_bPlain = text[i] == u'.' && !m_bPoint && i > first;
                m_bPoint = true;
            }
        }
    }

    /// Whether the text is such a decimal; otherwise nothing else is of use.
    bool isPlain() const { return m_bPlain; }
    bool hasPoint() const { return m_bPoint; }
    /// Where a point separates the decimals.
    double value() const {
        const double magnitude = static_cast<double>(m_digits) / powers[m_decimals];
        return m_bNegative ? -magnitude : magnitude;
    }

    /// Whether a point separates the decimals in the process's locale.
    static bool isPointOfLocale() { return std::strcmp(zvPlatform::decimalPoint(), ".") == 0; }

private:
    static constexpr std::size_t mostDigits = 15;
    static constexpr double powers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};

    long long m_digits = 0;
    std::size_t m_decimals = 0;
    bool m_bNegative;
    bool m_bPlain;
    bool m_bPoint = false;
};

#endif
