#include "zvCharString.h"

#include <new>

namespace {

// The fallback when out of memory, so that data() is never null.
char emptyText[1] = "";

}  // namespace

zvCharString::zvCharString(const zvString& text) : m_pText(text.narrowCopy()) {
    if (m_pText == nullptr) {
        m_pText = static_cast<char*>(::operator new(1, std::nothrow));
        if (m_pText == nullptr) {
            m_pText = emptyText;
        }
        *m_pText = '\0';
    }
}

zvCharString::~zvCharString() {
    if (m_pText != emptyText) {
        zvString::releaseString(m_pText);
    }
}
