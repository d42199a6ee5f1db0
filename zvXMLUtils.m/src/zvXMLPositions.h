#ifndef ZV_XML_POSITIONS_H
#define ZV_XML_POSITIONS_H

#include <unordered_map>
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
    void beginElement(const xercesc::DOMNode* element) { m_positions[element] = m_end; }

    /// Unknown for null and for a node that was not read.
    zvTextPosition of(const xercesc::DOMNode* element) const {
        const auto found = m_positions.find(element);
        return found == m_positions.end() ? zvTextPosition{} : found->second;
    }

    static zvTextPosition at(const xercesc::Locator& scanner) {
        return {static_cast<int>(scanner.getLineNumber()), static_cast<int>(scanner.getColumnNumber())};
    }

private:
    zvTextPosition m_end{1, 1};
    std::unordered_map<const xercesc::DOMNode*, zvTextPosition> m_positions;
};

#endif
