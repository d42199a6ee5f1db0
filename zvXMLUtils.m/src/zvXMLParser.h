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
#include "zvXMLOptions.h"

class zvDOMLoader;

/// XML facade: loads or creates a document, traverses, queries, extends and writes it.
///
/// The cursor operations move a current node; the direct operations take an element and return their empty
/// result for null. The two can be mixed. Nodes and node lists are borrowed: they are valid until the parser
/// loads or creates another document. Names are case-sensitive and include the prefix.
///
/// Documents may be hostile. External entities and document type definitions are read only for a document
/// loaded from a file, only from files in or below its folder, and not at all if the options say so. A
/// refused document, and one that takes far more memory than its size suggests, is logged as an error and
/// fails the load. A document is validated against its own declarations.
///
/// Parsers may be created and destroyed on any thread: the XML platform is reference-counted.
class ZV_EXPORT zvXMLParser : public zvCoreObject {
public:
    zvXMLParser();
    /// Also reports what is wrong with the documents that it loads, and why one cannot be written, to
    /// `findings`, which may be null and must outlive the parser. `options` say what is accepted.
    explicit zvXMLParser(zvFindingSink* findings, const zvXMLOptions& options = {});
    /// Loads as loadXMLFromString does; getRootElement() tells whether that succeeded.
    zvXMLParser(const zvString& source, bool isFile);
    zvXMLParser(const zvXMLParser&) = delete;
    zvXMLParser& operator=(const zvXMLParser&) = delete;
    ~zvXMLParser() override;

    /// Loads a file, given by its path or a "file:" URI, or the document in `source`, and moves the cursor to
    /// the document element. The characters of a zvString are taken as they are, whatever encoding the
    /// document declares.
    /// @return false, without a document, for a warning or an error, a refused document, or a missing
    /// document element. A document that stops being well-formed after its root's start tag is loaded up to
    /// that point, with a warning in the log.
    bool loadXMLFromString(const zvString& source, bool isFile);
    /// The same; the bytes of a document are in its declared encoding, UTF-8 by default.
    bool loadXMLFromString(const char* source, bool isFile);
    /// Creates a document with a root element only and moves the cursor to it. False, without a document, for
    /// invalid names.
    bool createXMLTree(const zvString& rootName, const zvString& namespaceURI);
    bool createXMLTree(const zvString& rootName);

    /// The document element; null without a document.
    xercesc::DOMElement* getRootElement() const;
    /// The last result of getRoot() in this document; null before.
    xercesc::DOMNode* getRootNode() const;
    /// The cursor; null without a document.
    xercesc::DOMNode* getCurrentNode() const;
    /// Moves the cursor to any node of the document; false for null.
    bool changeCurrentNode(xercesc::DOMNode* node);

    /// Where an element begins in the source; unknown for other nodes, and without a sink for findings.
    zvTextPosition getPosition(const xercesc::DOMNode* node) const;
    /// The sink that the parser was created with, borrowed; null without one.
    zvFindingSink* getFindingSink() const;

    /// @name Moving the cursor
    /// Each moves the cursor and returns the new node's name in `tag`; false, with the cursor unchanged and
    /// an empty name, if there is no such node.
    /// @{

    /// The outermost element around the cursor.
    bool getRoot(zvString& tag);
    /// The parent of whatever kind: above the document element it is the document.
    bool getParent(zvString& tag);
    /// The first child that is an element.
    bool getFirstChild(zvString& tag);
    /// The next sibling that is an element.
    bool getNextSibling(zvString& tag);
    /// @}

    /// The name of the current node.
    bool getTag(zvString& tag) const;
    /// The first text among the current node's children; false, with an empty value, if there is none.
    bool getMemberValue(zvString& value) const;
    /// An attribute of the current node; false, with an empty value, if it is missing.
    bool getAttribute(const zvString& name, zvString& value) const;
    bool getAttribute(xercesc::DOMNode* node, const zvString& name, zvString& value) const;
    /// All attributes of the current node as parallel lists, ordered by name; false for none.
    bool getAttributes(zvStringList& names, zvStringList& values) const;
    bool getAttributes(xercesc::DOMNode* node, zvStringList& names, zvStringList& values) const;

    /// @name Extending the document
    /// False, with an error in the log, if the cursor is not on an element or the name is invalid.
    /// @{

    /// Appends an element to the current one and moves the cursor to it.
    bool addStartTag(const zvString& name);
    /// Sets an attribute of the current element.
    bool addAttribute(const zvString& name, const zvString& value);
    /// Appends a text to the current element; false also for an empty one.
    bool addMemberValue(const zvString& text);
    /// Moves the cursor to the parent; false at the document itself.
    bool addEndTag();
    /// @}

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
    void init(zvFindingSink* findings, const zvXMLOptions& options);
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
