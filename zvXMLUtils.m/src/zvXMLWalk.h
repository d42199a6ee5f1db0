#ifndef ZV_XML_WALK_H
#define ZV_XML_WALK_H

#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNode.hpp>

/// Iterative traversal of a document: without recursion, so that depth is not limited by the stack, and
/// without the XML library's live node lists, which search from the start each time.
namespace zvXMLWalk {

/// The node after `node` in document order, among the descendants of `top`; null at the end. `depth` is
/// incremented for each step down and decremented for each step up.
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

/// The first node of the type among `node` and the siblings after it; null if there is none.
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
