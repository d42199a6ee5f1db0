#ifndef ZV_DOM_LOADER_H
#define ZV_DOM_LOADER_H

#include <memory>
#include <xercesc/util/XercesDefs.hpp>

#include "zvCoreObject.h"
#include "zvFinding.h"
#include "zvResult.h"
#include "zvString.h"
#include "zvXMLOptions.h"

XERCES_CPP_NAMESPACE_BEGIN
class BinInputStream;
class DOMDocument;
class DOMNode;
XERCES_CPP_NAMESPACE_END

/// Loads or creates a document and owns it, until the next one or its own end. A failure leaves no document.
///
/// It needs the XML platform initialised for as long as it has a document.
class ZV_EXPORT zvDOMLoader : public zvCoreObject {
public:
    /// Also reports why a document does not come out whole to `findings`, which may be null and must outlive
    /// the loader. `options` say what is accepted. Positions are kept for a loader with findings only.
    explicit zvDOMLoader(zvFindingSink* findings = nullptr, const zvXMLOptions& options = {});
    zvDOMLoader(const zvDOMLoader&) = delete;
    zvDOMLoader& operator=(const zvDOMLoader&) = delete;
    ~zvDOMLoader() override;

    /// Parses a file, given by its path or a "file:" URI, or a document in its declared encoding (UTF-8 by
    /// default).
    /// @return false, with the reason in the log, for a document that has a warning or an error, is refused,
    /// or cannot be read at all.
    bool parse(const char* source, bool isFile);
    /// Parses a document that is already decoded: the encoding that it declares is ignored.
    bool parseText(const zvString& text);
    /// Creates a document with a root element only; false for invalid names.
    bool createDocument(const zvString& rootName, const zvString& namespaceURI);
    /// Null without a document.
    xercesc::DOMDocument* getDocument() const;
    void releaseDocument();
    /// Where an element begins in the source; unknown for every other node.
    zvTextPosition getPosition(const xercesc::DOMNode* node) const;
    zvFindingSink* getFindingSink() const { return m_pFindings; }
    /// Code -1 and "XML PARSING ERROR" when the last parse found warnings or errors, code 0 otherwise.
    zvResult getResult() const;

private:
    class Tree;

    template <typename Parse>
    bool guarded(Parse parse);
    bool parseFile(const char* location);
    template <typename Character>
    bool parseMemory(const Character* text, std::size_t length, const XMLCh* encoding);
    bool parseStream(const zvString& systemId, std::unique_ptr<xercesc::BinInputStream> stream,
                     const XMLCh* encoding);
    void report(const zvString& text) const;

    zvFindingSink* m_pFindings;
    zvXMLOptions m_options;
    zvResult m_result;
    std::unique_ptr<Tree> m_pTree;
};

#endif
