#include "zvXMLParser.h"

#include <mutex>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLChar.hpp>
#include <xercesc/util/XMLException.hpp>

#include "zvDOMLoader.h"
#include "zvDirFileUtils.h"
#include "zvException.h"
#include "zvLogSource.h"
#include "zvSurrogate.h"
#include "zvTextCodec.h"
#include "zvXMLElement.h"
#include "zvXMLText.h"
#include "zvXMLWalk.h"
#include "zvXMLWriter.h"

using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DOMException;
using xercesc::DOMNamedNodeMap;
using xercesc::DOMNode;
using xercesc::MemBufFormatTarget;
using xercesc::XMLChar1_0;
using xercesc::XMLException;
using xercesc::XMLPlatformUtils;
using zvXMLText::toString;
using zvXMLWalk::asElement;
using zvXMLWalk::firstOf;

namespace {

constexpr zvLogSource logger("zvXMLUtils.m/src/zvXMLParser");

// The XML library counts its users without a lock, and each thread's parsers are such users.
std::mutex platformCount;

constexpr int initialCapacity = 1023;  // bytes of a document that is written

zvString orDefault(const zvString& encoding) { return encoding.empty() ? zvString("UTF-8") : encoding; }

bool hasNarrowForm(const zvString& text) {
    return !text.empty() && zvTextCodec::narrowLength(text.data(), static_cast<std::size_t>(text.size())) !=
                                zvTextCodec::unconvertible;
}

}  // namespace

zvXMLParser::zvXMLParser() : zvXMLParser(static_cast<zvFindingSink*>(nullptr)) {}

zvXMLParser::zvXMLParser(zvFindingSink* findings, const zvXMLOptions& options)
    : m_pCurrentNode(nullptr), m_pRootNode(nullptr) {
    init(findings, options);
}

zvXMLParser::zvXMLParser(const zvString& source, bool isFile) : zvXMLParser() {
    static_cast<void>(loadXMLFromString(source, isFile));
}

zvXMLParser::~zvXMLParser() {
    if (m_pLoader != nullptr) {
        m_pLoader.reset();
        const std::lock_guard<std::mutex> guard(platformCount);
        XMLPlatformUtils::Terminate();
    }
}

void zvXMLParser::init(zvFindingSink* findings, const zvXMLOptions& options) {
    m_pLoader = std::make_unique<zvDOMLoader>(findings, options);
    try {
        const std::lock_guard<std::mutex> guard(platformCount);
        XMLPlatformUtils::Initialize();
    } catch (const XMLException& exception) {
        logger.error("zvXMLParser initialization failed. Error message: ", toString(exception.getMessage()));
        m_pLoader.reset();
    }
}

bool zvXMLParser::loadXMLFromString(const zvString& source, bool isFile) {
    if (!hasNarrowForm(source)) {
        return false;
    }
    return isFile ? loadXMLFromString(source.getChars(), true)
                  : replaceDocument([&](zvDOMLoader& loader) { return loader.parseText(source); });
}

bool zvXMLParser::loadXMLFromString(const char* source, bool isFile) {
    return source != nullptr &&
           replaceDocument([&](zvDOMLoader& loader) { return loader.parse(source, isFile); });
}

bool zvXMLParser::createXMLTree(const zvString& rootName, const zvString& namespaceURI) {
    return replaceDocument(
        [&](zvDOMLoader& loader) { return loader.createDocument(rootName, namespaceURI); });
}

bool zvXMLParser::createXMLTree(const zvString& rootName) { return createXMLTree(rootName, zvString()); }

// The nodes of the document before go with it.
template <typename Make>
bool zvXMLParser::replaceDocument(Make make) {
    if (m_pLoader == nullptr) {
        return false;
    }
    m_pCurrentNode = nullptr;
    m_pRootNode = nullptr;
    if (make(*m_pLoader) && validateDOMDocument()) {
        return true;
    }
    m_pLoader->releaseDocument();
    return false;
}

bool zvXMLParser::validateDOMDocument() {
    m_pCurrentNode = getRootElement();
    return m_pCurrentNode != nullptr;
}

DOMElement* zvXMLParser::getRootElement() const {
    const DOMDocument* const document = m_pLoader == nullptr ? nullptr : m_pLoader->getDocument();
    return document == nullptr ? nullptr : document->getDocumentElement();
}

DOMNode* zvXMLParser::getRootNode() const { return m_pRootNode; }

DOMNode* zvXMLParser::getCurrentNode() const { return m_pCurrentNode; }

zvTextPosition zvXMLParser::getPosition(const DOMNode* node) const {
    return m_pLoader == nullptr ? zvTextPosition{} : m_pLoader->getPosition(node);
}

zvFindingSink* zvXMLParser::getFindingSink() const {
    return m_pLoader == nullptr ? nullptr : m_pLoader->getFindingSink();
}

bool zvXMLParser::changeCurrentNode(DOMNode* node) {
    if (node == nullptr) {
        return false;
    }
    m_pCurrentNode = node;
    return true;
}

bool zvXMLParser::changeCurrentNode(DOMNode* node, zvString& tag) {
    return changeCurrentNode(node) && getTag(tag);
}

bool zvXMLParser::getRoot(zvString& tag) {
    if (m_pCurrentNode == nullptr) {
        return false;
    }
    tag.reset();
    DOMNode* root = nullptr;
    for (DOMNode* node = m_pCurrentNode; node != nullptr; node = node->getParentNode()) {
        if (asElement(node) != nullptr) {
            root = node;
        }
    }
    if (!changeCurrentNode(root, tag)) {
        return false;
    }
    m_pRootNode = root;
    return true;
}

bool zvXMLParser::getParent(zvString& tag) {
    if (m_pCurrentNode == nullptr) {
        return false;
    }
    tag.reset();
    return changeCurrentNode(m_pCurrentNode->getParentNode(), tag);
}

bool zvXMLParser::getFirstChild(zvString& tag) {
    if (m_pCurrentNode == nullptr) {
        return false;
    }
    tag.reset();
    return changeCurrentNode(firstOf(DOMNode::ELEMENT_NODE, m_pCurrentNode->getFirstChild()), tag);
}

bool zvXMLParser::getNextSibling(zvString& tag) {
    tag.reset();
    return m_pCurrentNode != nullptr &&
           changeCurrentNode(firstOf(DOMNode::ELEMENT_NODE, m_pCurrentNode->getNextSibling()), tag);
}

bool zvXMLParser::getTag(zvString& tag) const {
    if (m_pCurrentNode == nullptr) {
        return false;
    }
    zvXMLText::assign(tag, m_pCurrentNode->getNodeName());
    return !tag.empty();
}

bool zvXMLParser::getMemberValue(zvString& value) const {
    if (m_pCurrentNode == nullptr) {
        return false;
    }
    value.reset();
    const DOMNode* const text = getChildTextNode(m_pCurrentNode);
    if (text == nullptr) {
        return false;
    }
    zvXMLText::assign(value, text->getNodeValue());
    return true;
}

bool zvXMLParser::getAttribute(const zvString& name, zvString& value) const {
    return getAttribute(m_pCurrentNode, name, value);
}

bool zvXMLParser::getAttribute(DOMNode* node, const zvString& name, zvString& value) const {
    value.reset();
    const DOMNamedNodeMap* const attributes = node == nullptr ? nullptr : node->getAttributes();
    const DOMNode* const attribute =
        attributes == nullptr ? nullptr : attributes->getNamedItem(zvXMLChars(name).get());
    if (attribute == nullptr) {
        return false;
    }
    zvXMLText::assign(value, zvXMLElement::valueOf(*attribute).data());
    return true;
}

bool zvXMLParser::getAttributes(zvStringList& names, zvStringList& values) const {
    return getAttributes(m_pCurrentNode, names, values);
}

bool zvXMLParser::getAttributes(DOMNode* node, zvStringList& names, zvStringList& values) const {
    names.clear();
    values.clear();
    const DOMNamedNodeMap* const attributes = node == nullptr ? nullptr : node->getAttributes();
    const XMLSize_t count = attributes == nullptr ? 0 : attributes->getLength();
    for (XMLSize_t i = 0; i < count; ++i) {
        const DOMNode* const attribute = attributes->item(i);
        names.addString(toString(attribute->getNodeName()));
        values.addString(toString(attribute->getNodeValue()));
    }
    return count > 0;
}

// Only elements are built upon, and a name that is none does not leave as the XML library's exception.
template <typename Change>
bool zvXMLParser::changeCurrentElement(Change change) {
    DOMElement* const element = asElement(m_pCurrentNode);
    if (m_pLoader == nullptr || element == nullptr) {
        logger.error("The document cannot be changed: the current node is not an element");
        return false;
    }
    try {
        change(*element, *element->getOwnerDocument());
        return true;
    } catch (const DOMException& exception) {
        logger.error("The document cannot be changed: ", toString(exception.getMessage()));
    }
    return false;
}

bool zvXMLParser::addStartTag(const zvString& name) {
    return changeCurrentElement([&](DOMElement& element, DOMDocument& document) {
        m_pCurrentNode = element.appendChild(document.createElement(zvXMLChars(name).get()));
    });
}

bool zvXMLParser::addAttribute(const zvString& name, const zvString& value) {
    return changeCurrentElement([&](DOMElement& element, DOMDocument&) {
        element.setAttribute(zvXMLChars(name).get(), zvXMLChars(value).get());
    });
}

bool zvXMLParser::addMemberValue(const zvString& text) {
    return !text.empty() && changeCurrentElement([&](DOMElement& element, DOMDocument& document) {
        element.appendChild(document.createTextNode(zvXMLChars(text).get()));
    });
}

bool zvXMLParser::addEndTag() {
    return m_pCurrentNode != nullptr && changeCurrentNode(m_pCurrentNode->getParentNode());
}

zvString zvXMLParser::getStringFromXMLCh(const unsigned short* text) { return {text}; }

bool zvXMLParser::isXMLText(const zvString& text) {
    for (int i = 0; i < text.size(); ++i) {
        const wchar16 unit = text[i];
        // The terminator stands after the last unit.
        if (zvSurrogate::isHigh(unit) && zvSurrogate::isLow(text[i + 1])) {
            ++i;
        } else if (zvSurrogate::isAny(unit) || !XMLChar1_0::isXMLChar(unit)) {
            return false;
        }
    }
    return true;
}

bool zvXMLParser::writeTreeToFile(const zvString& path, const zvString& encoding) {
    const zvString folder = path.empty() ? zvString() : zvDirFileUtils::extractDirName(path);
    return writeTree([&](DOMDocument& document) {
        if (!folder.empty() && !zvDirFileUtils::isAccessible(folder, 0)) {
            logger.raise("The data cannot be written to the given location \"", folder, "\"");
        }
        MemBufFormatTarget bytes(initialCapacity);
        zvXMLWriter::write(document, bytes, orDefault(encoding));
        if (path.empty()) {
            zvXMLWriter::toStandardOutput(bytes);
        } else {
            zvXMLWriter::toFile(bytes, path);
        }
    });
}

bool zvXMLParser::writeTreeToString(zvString& out, const zvString& encoding) {
    out.clear();
    return writeTree([&](DOMDocument& document) {
        MemBufFormatTarget bytes(initialCapacity);
        zvXMLWriter::write(document, bytes, orDefault(encoding));
        out = zvXMLWriter::toText(bytes, orDefault(encoding));
    });
}

template <typename Write>
bool zvXMLParser::writeTree(Write write) {
    try {
        DOMDocument* const document = m_pLoader == nullptr ? nullptr : m_pLoader->getDocument();
        if (document == nullptr) {
            logger.raise("The document cannot be written: there is none");
        }
        write(*document);
        return true;
    } catch (const zvException& exception) {  // logged where it was raised
        if (zvFindingSink* const findings = getFindingSink()) {
            zvFinding finding;
            finding.kind = zvFindingKind::notWritten;
            finding.text = exception.getResult().getMessage();
            findings->report(finding);
        }
    }
    return false;
}
