#ifndef ZV_CHAR_STRING_H
#define ZV_CHAR_STRING_H

#include "zvString.h"

/// Owns the narrow form of a zvString, for an interface that takes plain characters.
class ZV_EXPORT zvCharString {
public:
    explicit zvCharString(const zvString& text);
    zvCharString(const zvCharString&) = delete;
    zvCharString& operator=(const zvCharString&) = delete;
    ~zvCharString();

    /// The narrow text, owned by this object; "", never null, for a text that is empty or has no narrow form.
    const char* data() const { return m_pText; }

private:
    zvCharString() : m_pText(nullptr) {}
    // Made from a zvString only: a narrow text needs no conversion.
    explicit zvCharString(const char*) : m_pText(nullptr) {}

    char* m_pText;
};

#endif
