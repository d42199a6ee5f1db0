#ifndef ZV_XML_PARSER_H
#define ZV_XML_PARSER_H

#include <memory>
#include <type_traits>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNode.hpp>

#include "zvCoreObject.h"
#include "zvFinding.h"
#include "zvString.h"
#include "zvStringList.h"
#include "zvXERCESDOMNODEList.h"

class zvDOMLoader;

/// The way into XML: loads or creates a document, walks over it, queries it, adds to it and writes it.
///
/// The cursor operations move a current node; the direct ones take an element, and a null element gives their
/// empty result. The two mix freely. Nodes and lists of nodes are valid as long as the parser has the
/// document that they are in: a load or a creation replaces it. Names are case-sensitive and compared as a
/// whole, prefix included.
///
/// Documents may be hostile. External entities and document type definitions are read only for a document
/// that is in a file, from files in or below its folder; what is refused, and a document that takes far more
/// memory than its size lets expect, is logged as an error and fails the load. A document with declarations
/// of its own is held to them.
///
/// The parsers of a process count the initialisations of the XML platform together with whoever else uses it,
/// and do so from any thread.
class ZV_EXPORT zvXMLParser : public zvCoreObject {
public:
    zvXMLParser();
    /// Also reports what is wrong with the documents that it loads, and why one cannot be written, to
    /// `findings`, which may be null and must outlive the parser.
    explicit zvXMLParser(zvFindingSink* findings);
    /// Loads as loadXMLFromString does; getRootElement() tells whether that succeeded.
    zvXMLParser(const zvString& source, bool isFile);
    zvXMLParser(const zvXMLParser&) = delete;
    zvXMLParser& operator=(const zvXMLParser&) = delete;
    ~zvXMLParser() override;

    /// Loads a file, `source` being its path or a "file:" URI, or the document that `source` is. The cursor
    /// goes to the document element. @return false, and no document, for anything that gives a warning or an
    /// error, is refused or has no document element. A document that stops being well-formed behind its
    /// root's start is loaded as far as it was read, with a warning in the log.
    ///
    /// The characters of a zvString are what they are, whatever encoding the document declares.
    bool loadXMLFromString(const zvString& source, bool isFile);
    /// The bytes of a document are in the encoding that it declares, UTF-8 when it declares none.
    bool loadXMLFromString(const char* source, bool isFile);
    /// Makes a document with a root element only, to which the cursor goes. False, and no document, for names
    /// that are none.
    bool createXMLTree(const zvString& rootName, const zvString& namespaceURI);
    bool createXMLTree(const zvString& rootName);

    /// The document element; null without a document.
    xercesc::DOMElement* getRootElement() const;
    /// What getRoot() found last in this document; null before.
    xercesc::DOMNode* getRootNode() const;
    /// Where the cursor stands; null without a document.
    xercesc::DOMNode* getCurrentNode() const;
    /// Moves the cursor to any node of the document; false for null.
    bool changeCurrentNode(xercesc::DOMNode* node);

    /// Where an element begins in the source. Unknown for every other node, and without a sink for findings.
    zvTextPosition getPosition(const xercesc::DOMNode* node) const;
    /// What the parser was made with; null without one.
    zvFindingSink* getFindingSink() const;

    /// Each moves the cursor and gives the name of the node that it then stands on. Where there is none, the
    /// answer is false, the cursor stays and the name is empty.
    ///
    /// The outermost element around the cursor.
    bool getRoot(zvString& tag);
    /// The parent of whatever kind: above the document element it is the document.
    bool getParent(zvString& tag);
    /// The first child that is an element.
    bool getFirstChild(zvString& tag);
    /// The next sibling that is an element.
    bool getNextSibling(zvString& tag);

    /// The name of the current node.
    bool getTag(zvString& tag) const;
    /// The first text among the current node's children; false, with an empty value, when there is none.
    bool getMemberValue(zvString& value) const;
    /// An attribute of the current node; false, with an empty value, when it has none of that name.
    bool getAttribute(const zvString& name, zvString& value) const;
    bool getAttribute(xercesc::DOMNode* node, const zvString& name, zvString& value) const;
    /// All attributes of the current node, as parallel lists in the order of their names; false for none.
    bool getAttributes(zvStringList& names, zvStringList& values) const;
    bool getAttributes(xercesc::DOMNode* node, zvStringList& names, zvStringList& values) const;

    /// Appends an element to the current one and moves the cursor to it. Like the next two it answers false,
    /// with an error in the log, when the cursor is not on an element or the name is none.
    bool addStartTag(const zvString& name);
    /// Sets an attribute of the current element.
    bool addAttribute(const zvString& name, const zvString& value);
    /// Appends a text, which is not empty, to the current element.
    bool addMemberValue(const zvString& text);
    /// Moves the cursor to the parent; false when there is none.
    bool addEndTag();

    /// The first element of that name among all descendants, in document order; null for none, and for an
    /// empty name.
    xercesc::DOMElement* getChildElement(xercesc::DOMElement* element, const zvString& name) const;
    /// @throws zvException when a required one is not found below an element that is not null.
    xercesc::DOMElement* getChildElement(xercesc::DOMElement* element, const zvString& name,
                                         bool required) const;
    /// The first child that is a text; null for none.
    xercesc::DOMNode* getChildTextNode(xercesc::DOMNode* node) const;
    /// The first text in what getChildElement finds, without white space at its ends; empty when there is
    /// none.
    zvString getChildTextTrim(xercesc::DOMElement* element, const zvString& name) const;
    /// @throws zvException when a required text is empty below an element that is not null.
    zvString getChildText(xercesc::DOMElement* element, const zvString& name, bool required) const;
    /// @throws zvException when a required attribute is missing, or a required value empty, of an element
    /// that is not null.
    zvString getAttributeValue(xercesc::DOMElement* element, const zvString& name, bool required,
                               bool valueRequired) const;
    /// All descendants of that name in document order, in a new list that the caller owns.
    zvXERCESDOMNODEList* getChildElementsByTagName(xercesc::DOMElement* element, const zvString& name) const;
    /// The children of that name in document order, in a new list that the caller owns.
    zvXERCESDOMNODEList* getChildNodes(xercesc::DOMElement* element, const zvString& name) const;
    /// Text as the XML library keeps it, up to its terminator; empty for null.
    static zvString getStringFromXMLCh(const unsigned short* text);
    /// A template, so that a null pointer without a type is no second meaning.
    template <typename Unit, std::enable_if_t<std::is_same_v<Unit, XMLCh>, bool> = true>
    static zvString getStringFromXMLCh(const Unit* text) {
        return text;
    }

    /// Whether an XML document can hold the text: no control characters, no half of a surrogate pair.
    static bool isXMLText(const zvString& text);

    /// Writes the document with its declaration and single line feeds in `encoding`, UTF-8 for an empty one:
    /// to a file, the folder of which has to be there, or to standard output for an empty path. @return
    /// false, with an error in the log, when there is no document or not all of it could be written; an
    /// element below level 2,000 cannot.
    bool writeTreeToFile(const zvString& path, const zvString& encoding);
    /// The same into a text, which the document declares to be in `encoding`. A character that the encoding
    /// lacks is a reference in it.
    bool writeTreeToString(zvString& out, const zvString& encoding);

private:
    void init(zvFindingSink* findings);
    template <typename Make>
    bool replaceDocument(Make make);
    bool validateDOMDocument();
    bool changeCurrentNode(xercesc::DOMNode* node, zvString& tag);
    template <typename Change>
    bool changeCurrentElement(Change change);
    template <typename Write>
    bool writeTree(Write write);

    std::unique_ptr<zvDOMLoader> m_pLoader;  // null without an XML platform
    xercesc::DOMNode* m_pCurrentNode;
    xercesc::DOMNode* m_pRootNode;
};

#endif
