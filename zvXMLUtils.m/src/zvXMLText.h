#ifndef ZV_XML_TEXT_H
#define ZV_XML_TEXT_H

#include <cstring>
#include <memory>
#include <string_view>
#include <type_traits>
#include <xercesc/util/XercesDefs.hpp>

#include "zvString.h"

/// The one place where text meets the XML library. Both keep UTF-16 code units, so a text crosses unit by
/// unit: nothing can fail or get lost on the way, in any locale.
namespace zvXMLText {

static_assert(std::is_same_v<XMLCh, char16_t>, "zvString reads the XML library's characters as char16_t");

/// Empty for null, as is the text in `out`, which keeps its buffer.
inline zvString toString(const XMLCh* text) { return {text}; }
inline void assign(zvString& out, const XMLCh* text) { out = text; }

}  // namespace zvXMLText

/// A zvString as the XML library takes it: 0-terminated, never null.
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
    static constexpr std::size_t inlineCapacity = 64;  // names fit, so that a query does not allocate

    std::u16string_view view() const { return {get(), m_length}; }

    std::size_t m_length;
    std::unique_ptr<XMLCh[]> m_pHeap;
    XMLCh m_inline[inlineCapacity];
};

#endif
