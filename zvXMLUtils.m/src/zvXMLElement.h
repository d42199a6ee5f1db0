#ifndef ZV_XML_ELEMENT_H
#define ZV_XML_ELEMENT_H

#include <string_view>
#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>

#include "zvXMLText.h"
#include "zvXMLWalk.h"

/// A read-only view of an element, for parsing large documents: names and values are views into the document,
/// so that nothing is copied until a parser keeps it.
class zvXMLElement {
public:
    using View = std::u16string_view;
    class Children;

    /// Borrows the element, which has to outlive this object.
    explicit zvXMLElement(const xercesc::DOMElement& element) : m_pElement(&element) {}

    const xercesc::DOMElement* node() const { return m_pElement; }
    View name() const { return m_pElement->getNodeName(); }

    /// The range of the child elements, all or those with a name.
    Children children() const;
    Children children(View name) const;

    /// Calls `visit(View name, View value)` for every attribute in the order of the names.
    template <typename Visit>
    void forEachAttribute(Visit visit) const {
        const xercesc::DOMNamedNodeMap* const attributes = m_pElement->getAttributes();
        const XMLSize_t count = attributes->getLength();
        for (XMLSize_t i = 0; i < count; ++i) {
            const xercesc::DOMNode* const attribute = attributes->item(i);
            visit(View(attribute->getNodeName()), valueOf(*attribute));
        }
    }
    /// The attribute's value; empty also for a missing attribute.
    zvString attribute(const XMLCh* name) const {
        return zvXMLText::toString(m_pElement->getAttribute(name));
    }

    /// The value of an attribute, null-terminated. Fast path: nearly always it is a single text node, and
    /// reading that directly halves the time of reading an attribute.
    static View valueOf(const xercesc::DOMNode& attribute) {
        const xercesc::DOMNode* const text = attribute.getFirstChild();
        return text != nullptr && text->getNodeType() == xercesc::DOMNode::TEXT_NODE &&
                       text->getNextSibling() == nullptr
                   ? text->getNodeValue()
                   : attribute.getNodeValue();
    }

    /// The character data among the children, CDATA sections included; empty if there is none.
    zvString text() const {
        const auto isCharacterData = [](const xercesc::DOMNode& node) {
            return node.getNodeType() == xercesc::DOMNode::TEXT_NODE ||
                   node.getNodeType() == xercesc::DOMNode::CDATA_SECTION_NODE;
        };
        zvString text;
        const xercesc::DOMNode* child = m_pElement->getFirstChild();
        for (; child != nullptr; child = child->getNextSibling()) {
            if (isCharacterData(*child)) {
                zvString piece = zvXMLText::toString(child->getNodeValue());
                if (text.empty()) {
                    text.swap(piece);  // nearly always it is the only one
                } else {
                    text += piece;
                }
            }
        }
        return text;
    }

private:
    const xercesc::DOMElement* m_pElement;
};

class zvXMLElement::Children {
public:
    class Iterator {
    public:
        Iterator(const xercesc::DOMNode* node, View name) : m_pNode(node), m_name(name) { skipOthers(); }

        zvXMLElement operator*() const {
            return zvXMLElement(static_cast<const xercesc::DOMElement&>(*m_pNode));
        }
        Iterator& operator++() {
            m_pNode = m_pNode->getNextSibling();
            skipOthers();
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_pNode != other.m_pNode; }

    private:
        void skipOthers() {
            while (m_pNode != nullptr && !isWanted()) {
                m_pNode = m_pNode->getNextSibling();
            }
        }
        bool isWanted() const {
            return m_pNode->getNodeType() == xercesc::DOMNode::ELEMENT_NODE &&
                   (m_name.empty() || m_name == m_pNode->getNodeName());
        }

        const xercesc::DOMNode* m_pNode;
        View m_name;
    };

    /// An empty name matches every element.
    Children(const xercesc::DOMElement& parent, View name) : m_pFirst(parent.getFirstChild()), m_name(name) {}

    Iterator begin() const { return {m_pFirst, m_name}; }
    Iterator end() const { return {nullptr, m_name}; }

private:
    const xercesc::DOMNode* m_pFirst;
    View m_name;
};

inline zvXMLElement::Children zvXMLElement::children() const { return children({}); }

inline zvXMLElement::Children zvXMLElement::children(View name) const { return {*m_pElement, name}; }

#endif
