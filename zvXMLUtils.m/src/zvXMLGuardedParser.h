#ifndef ZV_XML_GUARDED_PARSER_H
#define ZV_XML_GUARDED_PARSER_H

#include <cstdint>
#include <filesystem>
#include <set>
#include <unordered_map>
#include <unordered_set>
#include <vector>
#include <xercesc/parsers/DOMLSParserImpl.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "zvPlatform.h"
#include "zvString.h"
#include "zvXMLOptions.h"
#include "zvXMLSource.h"

class zvXMLMemory;
class zvXMLPositions;

/// The XML library's document parser with this library's settings, for untrusted documents.
///
/// External entities and document type definitions are read from files in or below the document's folder
/// only, if at all, and expansions are limited, as is what the XML library handles in quadratic time or by
/// recursion.
/// A refusal is logged as an error and ends the parse with a zvException, so that no incomplete document is
/// returned.
class zvXMLGuardedParser : public xercesc::DOMLSParserImpl, public zvXMLReadGuard {
public:
    /// `folder` is the canonical folder of the document's file, empty for a document that is not in a file.
    /// `memory` outlives the parser.
    /// `positions`, which may be null and outlives it too, is told where elements begin.
    zvXMLGuardedParser(zvXMLMemory& memory, std::filesystem::path folder, const zvXMLOptions& options,
                       zvXMLPositions* positions);
    zvXMLGuardedParser(const zvXMLGuardedParser&) = delete;
    zvXMLGuardedParser& operator=(const zvXMLGuardedParser&) = delete;
    ~zvXMLGuardedParser() override;

    /// The document in `source`, owned by the parser; null when not even its beginning could be read.
    xercesc::DOMDocument* parseSource(xercesc::InputSource& source);

    void beforeReading() override;

    // What the XML library's scanner reports.
    xercesc::InputSource* resolveEntity(xercesc::XMLResourceIdentifier* entity) override;
    void error(const unsigned int code, const XMLCh* const domain,
               const xercesc::XMLErrorReporter::ErrTypes type, const XMLCh* const text,
               const XMLCh* const systemId, const XMLCh* const publicId, const XMLFileLoc line,
               const XMLFileLoc column) override;
    void startElement(const xercesc::XMLElementDecl& declaration, const unsigned int uriId,
                      const XMLCh* const prefix, const xercesc::RefVectorOf<xercesc::XMLAttr>& attributes,
                      const XMLSize_t attributeCount, const bool isEmpty, const bool isRoot) override;
    void endElement(const xercesc::XMLElementDecl& declaration, const unsigned int uriId, const bool isRoot,
                    const XMLCh* const prefix) override;
    void docCharacters(const XMLCh* const text, const XMLSize_t length, const bool isCData) override;
    void ignorableWhitespace(const XMLCh* const text, const XMLSize_t length, const bool isCData) override;
    void docComment(const XMLCh* const text) override;
    void docPI(const XMLCh* const target, const XMLCh* const data) override;
    void elementDecl(const xercesc::DTDElementDecl& declaration, const bool isIgnored) override;
    void attDef(const xercesc::DTDElementDecl& element, const xercesc::DTDAttDef& declaration,
                const bool isIgnored) override;
    void entityDecl(const xercesc::DTDEntityDecl& declaration, const bool isParameterEntity,
                    const bool isIgnored) override;
    void notationDecl(const xercesc::XMLNotationDecl& declaration, const bool isIgnored) override;

protected:
    xercesc::DOMElement* createElement(const XMLCh* name) override;
    xercesc::DOMAttr* createAttr(const XMLCh* name) override;

private:
    void endPiece();
    bool keepsText() const;
    void countName(const XMLCh* pooledName);
    void countChecks(const xercesc::XMLElementDecl& declaration);
    void checkContentModel(const xercesc::DTDElementDecl& declaration);
    std::filesystem::path fileOf(const xercesc::XMLResourceIdentifier& entity, const zvString& name) const;
    zvPlatform::File open(const std::filesystem::path& file, const zvString& name) const;
    void allowReading(const std::filesystem::path& file, std::uintmax_t size, const zvString& name);

    zvXMLMemory& m_memory;
    const std::filesystem::path m_folder;
    const zvXMLOptions m_options;
    zvPlatform::Handle m_directory;  // the folder, while files may be read from it
    zvXMLPositions* const m_pPositions;
    std::uintmax_t m_allocationsBefore;        // the piece that is being read
    std::unordered_set<const XMLCh*> m_names;  // of the document's pool, where equal names are one
    std::unordered_map<const xercesc::XMLElementDecl*, std::size_t> m_mixedModels;  // names in each
    std::vector<std::size_t> m_openModels;  // of the elements that the scanner is in; 0 if not mixed
    std::uintmax_t m_checks;
    XMLSize_t m_notations;
    std::set<std::filesystem::path> m_filesRead;
    std::uintmax_t m_bytesReadAgain;
    XMLSize_t m_entities;
    XMLSize_t m_longestEntity;
    std::size_t m_contentTransitions;
    xercesc::SecurityManager m_security;
};

#endif
