#ifndef ZV_XML_GUARDED_PARSER_H
#define ZV_XML_GUARDED_PARSER_H

#include <cstdint>
#include <filesystem>
#include <set>
#include <xercesc/parsers/DOMLSParserImpl.hpp>
#include <xercesc/util/SecurityManager.hpp>

#include "zvString.h"

class zvXMLMemory;
class zvXMLPositions;

/// The XML library's document parser with this library's settings, for untrusted documents.
///
/// External entities and document type definitions are read from files in or below the document's folder
/// only, and expansions are limited, as is what the XML library handles in quadratic time or by recursion.
/// A refusal is logged as an error and ends the parse with a zvException, so that no incomplete document is
/// returned.
class zvXMLGuardedParser : public xercesc::DOMLSParserImpl {
public:
    /// `folder` is the canonical folder of the document's file, empty for a document that is not in a file.
    /// `memory` outlives the parser.
    /// `positions`, which may be null and outlives it too, is told where elements begin.
    zvXMLGuardedParser(zvXMLMemory& memory, std::filesystem::path folder, zvXMLPositions* positions);
    zvXMLGuardedParser(const zvXMLGuardedParser&) = delete;
    zvXMLGuardedParser& operator=(const zvXMLGuardedParser&) = delete;
    ~zvXMLGuardedParser() override;

    /// The document in `source`, owned by the parser; null when not even its beginning could be read.
    xercesc::DOMDocument* parseSource(xercesc::InputSource& source);

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

protected:
    xercesc::DOMElement* createElement(const XMLCh* name) override;

private:
    void endPiece();
    void allowReading(const std::filesystem::path& file, const zvString& name);

    zvXMLMemory& m_memory;
    const std::filesystem::path m_folder;
    zvXMLPositions* const m_pPositions;
    std::set<std::filesystem::path> m_filesRead;
    std::uintmax_t m_bytesReadAgain;
    XMLSize_t m_entities;
    XMLSize_t m_longestEntity;
    std::size_t m_contentTransitions;
    xercesc::SecurityManager m_security;
};

#endif
