#ifndef ZV_XML_POSITIONS_H
#define ZV_XML_POSITIONS_H

#include <algorithm>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>
#include <xercesc/sax/Locator.hpp>

#include "zvFinding.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMNode;
XERCES_CPP_NAMESPACE_END

/// Where the elements of a document begin in its source.
///
/// The XML library tells where its scanner is when a piece of the document has been read: the next tag begins
/// there.
class zvXMLPositions {
public:
    /// Notes that a piece ends where the scanner is.
    void endPiece(const xercesc::Locator& scanner) { m_end = at(scanner); }
    /// Notes that the element begins where the last piece ended.
    void beginElement(const xercesc::DOMNode* element) { m_elements.emplace_back(element, m_end); }

    /// Unknown for null and for a node that was not read.
    zvTextPosition of(const xercesc::DOMNode* element) const {
        for (std::size_t place = m_next; place < std::min(m_next + fewSteps, m_elements.size()); ++place) {
            if (m_elements[place].first == element) {
                m_next = place;
                return m_elements[place].second;
            }
        }
        return findSorted(element);
    }

    static zvTextPosition at(const xercesc::Locator& scanner) {
        return {static_cast<int>(scanner.getLineNumber()), static_cast<int>(scanner.getColumnNumber())};
    }

private:
    using Element = std::pair<const xercesc::DOMNode*, zvTextPosition>;
    static constexpr std::size_t fewSteps = 8;

    // Among all, which are put into order when this is first needed.
    zvTextPosition findSorted(const xercesc::DOMNode* element) const {
        const auto isBefore = [](const Element& left, const Element& right) {
            return std::less<>()(left.first, right.first);
        };
        if (m_sorted.size() != m_elements.size()) {
            m_sorted = m_elements;
            std::sort(m_sorted.begin(), m_sorted.end(), isBefore);
        }
        const auto found = std::lower_bound(m_sorted.begin(), m_sorted.end(), Element{element, {}}, isBefore);
        return found == m_sorted.end() || found->first != element ? zvTextPosition{} : found->second;
    }

    zvTextPosition m_end{1, 1};
    std::vector<Element> m_elements;  // in the order of the document, in which readers ask for them
    mutable std::size_t m_next = 0;
    mutable std::vector<Element> m_sorted;
};

#endif
