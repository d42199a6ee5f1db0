#ifndef ZV_XML_TEXT_H
#define ZV_XML_TEXT_H

#include <cstring>
#include <memory>
#include <string_view>
#include <type_traits>
#include <xercesc/util/XercesDefs.hpp>

#include "zvString.h"

/// Conversion between zvString and the XML library's strings. Both are UTF-16, so that it is lossless, cannot
/// fail and does not depend on the locale.
namespace zvXMLText {

static_assert(std::is_same_v<XMLCh, char16_t>, "zvString reads the XML library's characters as char16_t");

/// Null gives an empty string. assign() reuses the buffer of `out`.
inline zvString toString(const XMLCh* text) { return {text}; }
inline void assign(zvString& out, const XMLCh* text) { out = text; }

}  // namespace zvXMLText

/// A copy of a zvString for the XML library: null-terminated, never null.
class zvXMLChars {
public:
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): most of the inline buffer is never looked at
    explicit zvXMLChars(const zvString& text) : m_length(static_cast<std::size_t>(text.size())) {
        if (m_length >= inlineCapacity) {
            m_pHeap = std::make_unique<XMLCh[]>(m_length + 1);
        }
        XMLCh* const out = m_pHeap == nullptr ? m_inline : m_pHeap.get();
        if (m_length > 0) {
            std::memcpy(out, text.data(), m_length * sizeof(XMLCh));
        }
        out[m_length] = 0;
    }
    zvXMLChars(const zvXMLChars&) = delete;
    zvXMLChars& operator=(const zvXMLChars&) = delete;
    ~zvXMLChars() = default;

    const XMLCh* get() const { return m_pHeap == nullptr ? m_inline : m_pHeap.get(); }
    bool equals(const XMLCh* other) const { return other != nullptr && view() == other; }

private:
    static constexpr std::size_t inlineCapacity = 64;  // most names fit, so that a lookup does not allocate

    std::u16string_view view() const { return {get(), m_length}; }

    std::size_t m_length;
    std::unique_ptr<XMLCh[]> m_pHeap;
    XMLCh m_inline[inlineCapacity];
};

#endif
