#ifndef ZV_TEXT_BUILDER_H
#define ZV_TEXT_BUILDER_H

#include <string>

#include "zvString.h"

/// Puts a text together from pieces, with room to grow, before it becomes an exact-fit zvString.
class zvTextBuilder {
public:
    zvTextBuilder& append(const zvString& piece);
    zvTextBuilder& append(const char* piece);
    zvTextBuilder& append(int number);
    zvTextBuilder& append(wchar16 unit);
    zvTextBuilder& append(char16_t unit) { return append(static_cast<wchar16>(unit)); }
    zvTextBuilder& append(char) = delete;  // or it would be appended as a number
    /// At most `length` code units of `piece`.
    zvTextBuilder& append(const wchar16* piece, int length);

    bool empty() const { return m_text.empty(); }
    void clear() { m_text.clear(); }
    zvString toString() const;

    /// The pieces, each a zvString, a narrow text or an int, one behind the other.
    template <typename... Pieces>
    static zvString concat(const Pieces&... pieces) {
        zvTextBuilder builder;
        (builder.append(pieces), ...);
        return builder.toString();
    }

private:
    std::basic_string<wchar16> m_text;
};

#endif
