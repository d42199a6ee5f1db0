#include "zvXMLParser.h"

#include <memory>
#include <xercesc/dom/DOM.hpp>

#include "zvLogSource.h"
#include "zvXERCESDOMNODEList.h"
#include "zvXMLText.h"
#include "zvXMLWalk.h"

using xercesc::DOMAttr;
using xercesc::DOMElement;
using xercesc::DOMNode;
using zvXMLText::toString;
using zvXMLWalk::asElement;
using zvXMLWalk::firstOf;

namespace {

constexpr zvLogSource logger("zvXMLUtils.m/src/zvXMLParser");  // as the class's other source file

// The first element of that name behind `node` among the descendants of `top`.
DOMElement* nextNamed(DOMNode* node, const DOMElement* top, const zvXMLChars& name) {
    while ((node = zvXMLWalk::next(node, top)) != nullptr) {
        DOMElement* const element = asElement(node);
        if (element != nullptr && name.equals(element->getNodeName())) {
            return element;
        }
    }
    return nullptr;
}

}  // namespace

DOMElement* zvXMLParser::getChildElement(DOMElement* element, const zvString& name) const {
    return element == nullptr || name.empty() ? nullptr : nextNamed(element, element, zvXMLChars(name));
}

DOMElement* zvXMLParser::getChildElement(DOMElement* element, const zvString& name, bool required) const {
    DOMElement* const found = getChildElement(element, name);
    if (required && element != nullptr && found == nullptr) {
        logger.raise("Required child element '", name, "' not provided below element ",
                     toString(element->getTagName()));
    }
    return found;
}

DOMNode* zvXMLParser::getChildTextNode(DOMNode* node) const {
    return node == nullptr ? nullptr : firstOf(DOMNode::TEXT_NODE, node->getFirstChild());
}

zvString zvXMLParser::getChildTextTrim(DOMElement* element, const zvString& name) const {
    const DOMNode* const node = getChildTextNode(getChildElement(element, name));
    if (node == nullptr) {
        return {};
    }
    zvString text = toString(node->getNodeValue());
    text.trim();
    return text;
}

zvString zvXMLParser::getChildText(DOMElement* element, const zvString& name, bool required) const {
    zvString text = getChildTextTrim(element, name);
    if (required && element != nullptr && text.empty()) {
        logger.raise("Required child element '", name, "' not provided below element ",
                     toString(element->getTagName()), " for Event");
    }
    return text;
}

zvString zvXMLParser::getAttributeValue(DOMElement* element, const zvString& name, bool required,
                                        bool valueRequired) const {
    if (element == nullptr) {
        return {};
    }
    const DOMAttr* const attribute = element->getAttributeNode(zvXMLChars(name).get());
    if (attribute == nullptr) {
        if (required) {
            logger.raise("Required attribute '", name, "' not provided for element '",
                         toString(element->getTagName()), "'");
        }
        return {};
    }
    zvString value = toString(attribute->getValue());
    if (valueRequired && value.empty()) {
        logger.raise("Value of attribute '", name, "' not provided for element '",
                     toString(element->getTagName()), "'");
    }
    return value;
}

zvXERCESDOMNODEList* zvXMLParser::getChildElementsByTagName(DOMElement* element, const zvString& name) const {
    auto list = std::make_unique<zvXERCESDOMNODEList>();
    if (element != nullptr) {
        const zvXMLChars wanted(name);
        for (DOMNode* node = element; (node = nextNamed(node, element, wanted)) != nullptr;) {
            list->addDOMNode(node);
        }
    }
    return list.release();
}

zvXERCESDOMNODEList* zvXMLParser::getChildNodes(DOMElement* element, const zvString& name) const {
    auto list = std::make_unique<zvXERCESDOMNODEList>();
    const zvXMLChars wanted(name);
    for (DOMNode* node = element == nullptr ? nullptr : element->getFirstChild(); node != nullptr;
         node = node->getNextSibling()) {
        if (asElement(node) != nullptr && wanted.equals(node->getNodeName())) {
            list->addDOMNode(node);
        }
    }
    return list.release();
}
