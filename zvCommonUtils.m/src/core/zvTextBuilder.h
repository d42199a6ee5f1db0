#ifndef ZV_TEXT_BUILDER_H
#define ZV_TEXT_BUILDER_H

#include <string>

#include "zvString.h"

/// Concatenates pieces in a growing buffer, whose content then becomes an exact-fit zvString. Throws
/// std::bad_alloc when out of memory: a text is whole or there is none.
class zvTextBuilder {
public:
    zvTextBuilder& append(const zvString& piece);
    zvTextBuilder& append(const char* piece);
    zvTextBuilder& append(int number);
    zvTextBuilder& append(wchar16 unit);
    zvTextBuilder& append(char16_t unit) { return append(static_cast<wchar16>(unit)); }
    zvTextBuilder& append(char) = delete;  // or it would be appended as a number
    /// Appends `length` code units of `piece`; nothing if `length` is below 1.
    zvTextBuilder& append(const wchar16* piece, int length);

    bool empty() const { return m_text.empty(); }
    void clear() { m_text.clear(); }
    zvString toString() const;

    /// The concatenation of the pieces, each a zvString, a narrow string or an int.
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
