#ifndef ZV_XML_WALK_H
#define ZV_XML_WALK_H

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNode.hpp>

/// Walks over a document from node to node: without a stack, so that no depth is too deep, and without the
/// XML library's live node lists, which search again from the start.
namespace zvXMLWalk {

/// The node behind `node` in document order, `top`'s descendants only; null at the end. `depth` follows: one
/// more for each step down, one less for each step up.
inline xercesc::DOMNode* next(xercesc::DOMNode* node, const xercesc::DOMNode* top, int& depth) {
    if (xercesc::DOMNode* const child = node->getFirstChild()) {
        ++depth;
        return child;
    }
    for (; node != nullptr && node != top; node = node->getParentNode(), --depth) {
        if (xercesc::DOMNode* const sibling = node->getNextSibling()) {
            return sibling;
        }
    }
    return nullptr;
}

inline xercesc::DOMNode* next(xercesc::DOMNode* node, const xercesc::DOMNode* top) {
    int depth = 0;
    return next(node, top, depth);
}

/// `node` or the nearest sibling behind it that has the type; null when none has.
inline xercesc::DOMNode* firstOf(xercesc::DOMNode::NodeType type, xercesc::DOMNode* node) {
    while (node != nullptr && node->getNodeType() != type) {
        node = node->getNextSibling();
    }
    return node;
}

/// `node` as an element; null for null and for any other kind of node.
inline xercesc::DOMElement* asElement(xercesc::DOMNode* node) {
    return node != nullptr && node->getNodeType() == xercesc::DOMNode::ELEMENT_NODE
               ? static_cast<xercesc::DOMElement*>(node)
               : nullptr;
}

}  // namespace zvXMLWalk

#endif
