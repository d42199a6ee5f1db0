#include "zvXMLGuardedParser.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>
#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/framework/Wrapper4InputSource.hpp>
#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/framework/XMLNotationDecl.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/util/QName.hpp>
#include <xercesc/util/XMLResourceIdentifier.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/DTD/DTDAttDefList.hpp>
#include <xercesc/validators/DTD/DTDElementDecl.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>
#include <xercesc/validators/common/ContentSpecNode.hpp>

#include "zvCharString.h"
#include "zvLogSource.h"
#include "zvPlatform.h"
#include "zvXMLLocation.h"
#include "zvXMLMemory.h"
#include "zvXMLPositions.h"
#include "zvXMLText.h"

namespace fs = std::filesystem;

using xercesc::ContentSpecNode;
using xercesc::DOMAttr;
using xercesc::DOMDocument;
using xercesc::DOMElement;
using xercesc::DTDAttDef;
using xercesc::DTDElementDecl;
using xercesc::DTDEntityDecl;
using xercesc::InputSource;
using xercesc::RefVectorOf;
using xercesc::Wrapper4InputSource;
using xercesc::XMLAttr;
using xercesc::XMLElementDecl;
using xercesc::XMLErrs;
using xercesc::XMLNotationDecl;
using xercesc::XMLResourceIdentifier;
using xercesc::XMLString;
using xercesc::XMLUni;

namespace {

constexpr zvLogSource logger("zvXMLUtils.m/src/zvXMLGuardedParser");

// Each limit is far beyond what documents have, and holds the time of a parse in proportion to its source.
constexpr XMLSize_t mostEntities = 10'000;
constexpr XMLSize_t mostEntityExpansions = 10'000;
constexpr XMLSize_t mostExpandedText = 32'000'000;          // characters
constexpr XMLSize_t longestEntity = 16'384;                 // characters
constexpr std::uintmax_t mostReadAgain = 64'000'000;        // bytes of external entities
constexpr std::uintmax_t costOfReading = 1024;              // bytes, for a file however short
constexpr XMLSize_t mostAttributes = 10'000;                // of an element
constexpr std::size_t largestContentModel = 2'048;          // names and operators: compiled by recursion
constexpr std::size_t mostContentStates = 4'096;            // of a content model
constexpr std::size_t mostContentTransitions = 10'000'000;  // of all content models
constexpr XMLSize_t longestEnumeration = 16'384;            // characters
// Each tag is checked against every declared attribute, and against every name of a mixed model.
constexpr std::uintmax_t mostChecks = 5'000'000;
constexpr std::uintmax_t checksForSourceByte = 16;
// Of one tag or declaration: what it has too many of cannot be counted before the XML library has read it.
constexpr std::uintmax_t mostAllocations = 250'000;

struct ContentModel {
    std::size_t nodes = 0;
    std::size_t names = 0;
    std::size_t states = 0;  // at most
};

// A content model is compiled into states: at most one for each set of places in it that have the same name,
// which is exponential in a model that is ambiguous. The measurement ends where a model has become too large.
ContentModel measured(const ContentSpecNode& model) {
    ContentModel size;
    std::map<std::u16string_view, int> places;
    std::vector<const ContentSpecNode*> open{&model};
    while (!open.empty() && size.nodes <= largestContentModel && size.states <= mostContentStates) {
        const ContentSpecNode* const node = open.back();
        open.pop_back();
        ++size.nodes;
        if (node->getType() == ContentSpecNode::Leaf) {
            ++size.names;
            size.states += std::size_t{1} << places[node->getElement()->getRawName()]++;
        }
        for (const ContentSpecNode* child : {node->getFirst(), node->getSecond()}) {
            if (child != nullptr) {
                open.push_back(child);
            }
        }
    }
    return size;
}

void refuseNames(std::size_t names, const zvXMLOptions& options, const XMLCh* last) {
    if (names > static_cast<std::size_t>(options.mostNames)) {
        logger.raise("XML document refused: more than ", options.mostNames,
                     " different names of elements and attributes, the last one '", zvXMLText::toString(last),
                     "'");
    }
}

// An enumeration is kept as its values with blanks between them.
std::size_t valuesIn(const XMLCh* enumeration) {
    const std::u16string_view text(enumeration);
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), u' ')) + 1;
}

}  // namespace

zvXMLGuardedParser::zvXMLGuardedParser(zvXMLMemory& memory, fs::path folder, const zvXMLOptions& options,
                                       zvXMLPositions* positions)
    : DOMLSParserImpl(nullptr, &memory, nullptr),
      m_memory(memory),
      m_folder(std::move(folder)),
      m_options(options),
      m_directory(zvPlatform::refusedHandle),
      m_pPositions(positions),
      m_allocationsBefore(0),
      m_checks(0),
      m_notations(0),
      m_bytesReadAgain(0),
      m_entities(0),
      m_longestEntity(0),
      m_contentTransitions(0) {
    setParameter(XMLUni::fgDOMNamespaces, false);
    setParameter(XMLUni::fgXercesSchema, false);
    setParameter(XMLUni::fgXercesSchemaFullChecking, false);
    setParameter(XMLUni::fgXercesContinueAfterFatalError, true);
    setParameter(XMLUni::fgDOMValidateIfSchema, true);
    setParameter(XMLUni::fgDOMDatatypeNormalization, true);
    // Entities become part of the text and the tree around them: nodes of their own would cut a text into
    // pieces, of which a query reads the first.
    setParameter(XMLUni::fgDOMEntities, false);
    getScanner()->setEntityHandler(this);
    if (m_options.readExternalEntities && !m_folder.empty()) {
        m_directory = zvPlatform::openDirectory(m_folder);
    }
}

zvXMLGuardedParser::~zvXMLGuardedParser() { zvPlatform::closeHandle(m_directory); }

DOMDocument* zvXMLGuardedParser::parseSource(InputSource& source) {
    const Wrapper4InputSource input(&source, false, &m_memory);
    DOMDocument* const document = DOMLSParserImpl::parse(&input);
    if (document != nullptr) {
        document->setStrictErrorChecking(true);  // still off when the end was not reached
    }
    return document;
}

void zvXMLGuardedParser::beforeReading() {
    if (m_memory.allocations() - m_allocationsBefore > mostAllocations) {
        logger.raise("XML document refused: too many names in one tag or declaration, in line ",
                     static_cast<int>(getScanner()->getLocator()->getLineNumber()));
    }
}

InputSource* zvXMLGuardedParser::resolveEntity(XMLResourceIdentifier* entity) {
    const zvString name = zvXMLText::toString(entity->getSystemId());
    if (!m_options.readExternalEntities) {
        logger.raise("XML document refused: it has the external entity \"", name,
                     "\", and no other file is read for it: put the text into the document itself");
    }
    if (m_folder.empty()) {
        logger.raise("XML document refused: it is not in a file and yet has the external entity \"", name,
                     "\"");
    }
    const fs::path path = fileOf(*entity, name);
    zvPlatform::File file = open(path, name);
    std::fseek(file.get(), 0, SEEK_END);
    const long size = std::ftell(file.get());
    std::rewind(file.get());
    allowReading(path, static_cast<std::uintmax_t>(std::max(size, 0L)), name);
    m_allocationsBefore = m_memory.allocations();
    return new (&m_memory) zvXMLSource(zvString(zvPlatform::textOf(path).c_str()),
                                       zvXMLSource::streamOf(std::move(file)), *this, &m_memory);
}

// Where the entity is, all links followed.
fs::path zvXMLGuardedParser::fileOf(const XMLResourceIdentifier& entity, const zvString& name) const {
    const std::optional<fs::path> local = zvXMLLocation::localPath(zvCharString(name).data());
    if (!local || local->empty() || (local->has_root_name() && local->root_name() != m_folder.root_name())) {
        logger.raise("XML document refused: its external entity \"", name,
                     "\" is not a file on this machine");
    }
    const fs::path base = zvPlatform::pathOf(zvCharString(zvXMLText::toString(entity.getBaseURI())).data());
    const fs::path path = (base.empty() ? m_folder : base.parent_path()) / *local;
    std::error_code error;
    fs::path file = fs::canonical(path, error);
    if (error) {
        file = fs::canonical(zvXMLLocation::percentDecoded(path), error);
    }
    if (error || !fs::is_regular_file(file, error)) {
        logger.raise("XML document refused: its external entity \"", name,
                     "\" is not a file that can be read");
    }
    if (!zvXMLLocation::isWithin(m_folder, file)) {
        logger.raise("XML document refused: its external entity \"", name,
                     "\" is outside the document's folder");
    }
    return file;
}

// The file that is read, whatever is put in its place from now on.
zvPlatform::File zvXMLGuardedParser::open(const fs::path& file, const zvString& name) const {
    zvPlatform::File opened = zvPlatform::openBelow(m_directory, file.lexically_relative(m_folder));
    if (opened == nullptr) {
        logger.raise("XML document refused: its external entity \"", name,
                     "\" is not a file that can be read");
    }
    return opened;
}

// A file's first reading is paid for by its size; all others share one allowance.
void zvXMLGuardedParser::allowReading(const fs::path& file, std::uintmax_t size, const zvString& name) {
    if (m_filesRead.insert(file).second) {
        m_memory.allowFor(size);
        return;
    }
    m_bytesReadAgain += size + costOfReading;
    if (m_bytesReadAgain > mostReadAgain) {
        logger.raise("XML document refused: it reads its external entity \"", name, "\" too often");
    }
}

void zvXMLGuardedParser::error(const unsigned int code, const XMLCh* const domain,
                               const XMLErrorReporter::ErrTypes type, const XMLCh* const text,
                               const XMLCh* const systemId, const XMLCh* const publicId,
                               const XMLFileLoc line, const XMLFileLoc column) {
    // As ordinary fatal errors they would leave a document with its end missing.
    const bool isEntities = code == XMLErrs::EntityExpansionLimitExceeded || code == XMLErrs::RecursiveEntity;
    if (isEntities && XMLString::equals(domain, XMLUni::fgXMLErrDomain)) {
        logger.raise("XML document refused: ", zvXMLText::toString(text));
    }
    DOMLSParserImpl::error(code, domain, type, text, systemId, publicId, line, column);
    m_allocationsBefore = m_memory.allocations();
}

void zvXMLGuardedParser::startElement(const XMLElementDecl& declaration, const unsigned int uriId,
                                      const XMLCh* const prefix, const RefVectorOf<XMLAttr>& attributes,
                                      const XMLSize_t attributeCount, const bool isEmpty, const bool isRoot) {
    if (attributeCount > mostAttributes) {
        logger.raise("XML document refused: too many attributes for element '",
                     zvXMLText::toString(declaration.getFullName()), "'");
    }
    countChecks(declaration);
    m_openModels.push_back(0);
    if (const auto model = m_mixedModels.find(&declaration); model != m_mixedModels.end()) {
        m_openModels.back() = model->second;
    }
    if (isRoot) {
        endPiece();  // nothing tells of the white space before it
    }
    DOMLSParserImpl::startElement(declaration, uriId, prefix, attributes, attributeCount, isEmpty, isRoot);
    endPiece();
}

void zvXMLGuardedParser::endElement(const XMLElementDecl& declaration, const unsigned int uriId,
                                    const bool isRoot, const XMLCh* const prefix) {
    DOMLSParserImpl::endElement(declaration, uriId, isRoot, prefix);
    m_openModels.pop_back();
    endPiece();
}

void zvXMLGuardedParser::docCharacters(const XMLCh* const text, const XMLSize_t length, const bool isCData) {
    if (keepsText()) {
        DOMLSParserImpl::docCharacters(text, length, isCData);
    }
    endPiece();
}

// Of the element that is being read.
bool zvXMLGuardedParser::keepsText() const {
    return m_options.onlyTextOf == nullptr || fCurrentParent == nullptr ||
           XMLString::equals(fCurrentParent->getNodeName(), m_options.onlyTextOf);
}

void zvXMLGuardedParser::ignorableWhitespace(const XMLCh* const text, const XMLSize_t length,
                                             const bool isCData) {
    DOMLSParserImpl::ignorableWhitespace(text, length, isCData);
    endPiece();
}

void zvXMLGuardedParser::docComment(const XMLCh* const text) {
    DOMLSParserImpl::docComment(text);
    endPiece();
}

void zvXMLGuardedParser::docPI(const XMLCh* const target, const XMLCh* const data) {
    DOMLSParserImpl::docPI(target, data);
    endPiece();
}

DOMElement* zvXMLGuardedParser::createElement(const XMLCh* name) {
    DOMElement* const element = DOMLSParserImpl::createElement(name);
    countName(element->getNodeName());
    if (m_pPositions != nullptr) {
        m_pPositions->beginElement(element);
    }
    return element;
}

DOMAttr* zvXMLGuardedParser::createAttr(const XMLCh* name) {
    DOMAttr* const attribute = DOMLSParserImpl::createAttr(name);
    countName(attribute->getNodeName());
    return attribute;
}

void zvXMLGuardedParser::countName(const XMLCh* pooledName) {
    m_names.insert(pooledName);
    refuseNames(m_names.size(), m_options, pooledName);
}

void zvXMLGuardedParser::endPiece() {
    m_allocationsBefore = m_memory.allocations();
    if (m_pPositions != nullptr) {
        m_pPositions->endPiece(*getScanner()->getLocator());
    }
}

// Of a start tag.
void zvXMLGuardedParser::countChecks(const XMLElementDecl& declaration) {
    m_checks += m_openModels.empty() ? 0 : m_openModels.back();
    m_checks += declaration.hasAttDefs() ? declaration.getAttDefList().getAttDefCount() : 0;
    if (m_checks / checksForSourceByte > m_memory.sourceBytes() + mostChecks / checksForSourceByte) {
        logger.raise("XML document refused: too many declared attributes or names to check element '",
                     zvXMLText::toString(declaration.getFullName()), "' against, and too many such elements");
    }
}

void zvXMLGuardedParser::elementDecl(const DTDElementDecl& declaration, const bool isIgnored) {
    refuseNames(declaration.getId(), m_options, declaration.getFullName());
    checkContentModel(declaration);
    DOMLSParserImpl::elementDecl(declaration, isIgnored);
    m_allocationsBefore = m_memory.allocations();
}

void zvXMLGuardedParser::checkContentModel(const DTDElementDecl& declaration) {
    const ContentSpecNode* const model = declaration.getContentSpec();
    if (model == nullptr) {
        return;
    }
    const ContentModel size = measured(*model);
    if (declaration.getModelType() == DTDElementDecl::Children) {
        m_contentTransitions += size.names * size.states;
    } else {
        m_mixedModels[&declaration] = size.names;
    }
    if (size.nodes > largestContentModel || size.states > mostContentStates ||
        m_contentTransitions > mostContentTransitions) {
        logger.raise("XML document refused: too large or too ambiguous a content model for element '",
                     zvXMLText::toString(declaration.getFullName()), "'");
    }
}

void zvXMLGuardedParser::attDef(const DTDElementDecl& element, const DTDAttDef& declaration,
                                const bool isIgnored) {
    refuseNames(element.getId(), m_options, element.getFullName());
    const XMLCh* const values = declaration.getEnumeration();
    if (values != nullptr && (XMLString::stringLen(values) > longestEnumeration ||
                              valuesIn(values) > static_cast<std::size_t>(m_options.mostEnumeratedValues))) {
        logger.raise("XML document refused: too many values, or too long ones, for attribute '",
                     zvXMLText::toString(declaration.getFullName()), "' of element '",
                     zvXMLText::toString(element.getFullName()), "'");
    }
    if (element.getAttDefList().getAttDefCount() > mostAttributes) {
        logger.raise("XML document refused: too many attributes declared for element '",
                     zvXMLText::toString(element.getFullName()), "'");
    }
    DOMLSParserImpl::attDef(element, declaration, isIgnored);
    m_allocationsBefore = m_memory.allocations();
}

void zvXMLGuardedParser::notationDecl(const XMLNotationDecl& declaration, const bool isIgnored) {
    if (++m_notations > static_cast<XMLSize_t>(m_options.mostNotations)) {
        logger.raise("XML document refused: more than ", m_options.mostNotations,
                     " notations, the last one '", zvXMLText::toString(declaration.getName()), "'");
    }
    DOMLSParserImpl::notationDecl(declaration, isIgnored);
    m_allocationsBefore = m_memory.allocations();
}

void zvXMLGuardedParser::entityDecl(const DTDEntityDecl& declaration, const bool isParameterEntity,
                                    const bool isIgnored) {
    m_longestEntity = std::max(m_longestEntity, declaration.getValueLen());
    if (++m_entities > mostEntities || m_longestEntity > longestEntity) {
        logger.raise("XML document refused: too many entities, or too long a one: '",
                     zvXMLText::toString(declaration.getName()), "'");
    }
    m_security.setEntityExpansionLimit(
        std::min(mostEntityExpansions, mostExpandedText / std::max<XMLSize_t>(m_longestEntity, 1)));
    getScanner()->setSecurityManager(&m_security);
    DOMLSParserImpl::entityDecl(declaration, isParameterEntity, isIgnored);
    m_allocationsBefore = m_memory.allocations();
}
