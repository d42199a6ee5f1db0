#ifndef ZV_XML_TEXT_H
#define ZV_XML_TEXT_H

#include <algorithm>
#include <memory>
#include <string_view>
#include <type_traits>
#include <xercesc/util/XercesDefs.hpp>

#include "zvString.h"

/// The one place where text meets the XML library. Both keep UTF-16 code units, so a text crosses unit by
/// unit: nothing can fail or get lost on the way, in any locale.
namespace zvXMLText {

static_assert(std::is_same_v<XMLCh, char16_t>, "zvString reads the XML library's characters as char16_t");

/// Empty for null.
inline zvString toString(const XMLCh* text) { return {text}; }

}  // namespace zvXMLText

/// A zvString as the XML library takes it: 0-terminated, never null.
class zvXMLChars {
public:
    explicit zvXMLChars(const zvString& text) : m_uLength(static_cast<std::size_t>(text.size())), m_inline{} {
        if (m_uLength >= inlineCapacity) {
            m_pHeap = std::make_unique<XMLCh[]>(m_uLength + 1);
        }
        XMLCh* const out = m_pHeap == nullptr ? m_inline : m_pHeap.get();
        std::copy_n(text.data(), m_uLength, out);
        out[m_uLength] = 0;
    }
    zvXMLChars(const zvXMLChars&) = delete;
    zvXMLChars& operator=(const zvXMLChars&) = delete;
    ~zvXMLChars() = default;

    const XMLCh* get() const { return m_pHeap == nullptr ? m_inline : m_pHeap.get(); }
    bool equals(const XMLCh* other) const { return other != nullptr && view() == other; }

private:
    static constexpr std::size_t inlineCapacity = 64;  // names fit, so that a query does not allocate

    std::u16string_view view() const { return {get(), m_uLength}; }

    std::size_t m_uLength;
    std::unique_ptr<XMLCh[]> m_pHeap;
    XMLCh m_inline[inlineCapacity];
};

#endif
