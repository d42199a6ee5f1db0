#ifndef ZV_CHAR_STRING_H
#define ZV_CHAR_STRING_H

#include "zvString.h"

/// Owns a null-terminated narrow copy of a zvString, for interfaces that take plain characters.
class ZV_EXPORT zvCharString {
public:
    zvCharString(const zvString& text);
    zvCharString(const zvCharString&) = delete;
    zvCharString& operator=(const zvCharString&) = delete;
    ~zvCharString();

    /// The narrow copy, owned by this object; "", never null, for a string that is empty or cannot be
    /// converted.
    const char* data() const { return m_pText; }

private:
    zvCharString() : m_pText(nullptr) {}
    // Not constructible from narrow text, which needs no conversion.
    explicit zvCharString(const char*) : m_pText(nullptr) {}

    char* m_pText;
};

#endif
