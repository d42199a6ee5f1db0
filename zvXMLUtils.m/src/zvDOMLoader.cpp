#include "zvDOMLoader.h"

#include <cstring>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/BinMemInputStream.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "zvDOMErrorHandler.h"
#include "zvLogSource.h"
#include "zvPlatform.h"
#include "zvXMLGuardedParser.h"
#include "zvXMLLocation.h"
#include "zvXMLMemory.h"
#include "zvXMLPositions.h"
#include "zvXMLSource.h"
#include "zvXMLText.h"

namespace fs = std::filesystem;

using xercesc::BinInputStream;
using xercesc::BinMemInputStream;
using xercesc::DOMDocument;
using xercesc::DOMException;
using xercesc::DOMImplementation;
using xercesc::DOMImplementationRegistry;
using xercesc::DOMNode;
using xercesc::OutOfMemoryException;
using xercesc::XMLException;
using xercesc::XMLUni;
using zvXMLText::toString;

namespace {

constexpr zvLogSource logger("zvXMLUtils.m/src/zvDOMLoader");

struct File {
    fs::path path;
    fs::path folder;  // canonical; empty when there is no such folder
    std::uintmax_t size;
};

// A file that does not exist is left for the parser to complain about.
File fileAt(const char* location) {
    fs::path path = zvPlatform::pathOf(location);
    std::error_code error;
    if (!fs::exists(path, error)) {
        const std::optional<fs::path> local = zvXMLLocation::localPath(location);
        if (!local || local->empty()) {
            logger.raise("XML document refused: \"", location, "\" is not a file on this machine");
        }
        path = *local;
    }
    if (fs::exists(path, error) && !fs::is_regular_file(path, error)) {
        logger.raise("XML document refused: \"", location, "\" is not a regular file");
    }
    const fs::path folder = fs::canonical(path.has_parent_path() ? path.parent_path() : ".", error);
    if (!error) {
        path = folder / path.filename();
    }
    const std::uintmax_t size = fs::file_size(path, error);
    return {path, folder, error ? 0 : size};
}

}  // namespace

// A document and everything it depends on, in the order required for destruction.
class zvDOMLoader::Tree {
public:
    explicit Tree(DOMDocument* created) : m_pDocument(created) {}
    // `sourceSize` is in bytes or, of a text that is decoded, in characters: what they take is the same.
    Tree(const fs::path& folder, std::uintmax_t sourceSize, const zvXMLOptions& options,
         zvFindingSink* findings)
        : m_pFindings(findings),
          m_pPositions(findings == nullptr ? nullptr : std::make_unique<zvXMLPositions>()),
          m_pParser(std::make_unique<zvXMLGuardedParser>(m_memory, folder, options, m_pPositions.get())),
          m_pDocument(nullptr) {
        m_memory.allowFor(sourceSize);
    }
    Tree(const Tree&) = delete;
    Tree& operator=(const Tree&) = delete;
    ~Tree() {
        m_memory.lift();
        if (m_pParser == nullptr && m_pDocument != nullptr) {
            m_pDocument->release();
        }
    }

    // `encoding` is null for the one that the document declares.
    zvResult parse(const zvString& systemId, std::unique_ptr<BinInputStream> stream, const XMLCh* encoding) {
        zvXMLSource source(systemId, std::move(stream), *m_pParser, &m_memory);
        source.setEncoding(encoding);
        zvDOMErrorHandler handler(m_pFindings);
        m_pParser->setParameter(XMLUni::fgDOMErrorHandler, &handler);
        m_pDocument = m_pParser->parseSource(source);
        m_pParser->setParameter(XMLUni::fgDOMErrorHandler, static_cast<const void*>(nullptr));
        m_memory.lift();
        return handler.takeResult();
    }
    DOMDocument* document() const { return m_pDocument; }
    zvTextPosition positionOf(const DOMNode* node) const {
        return m_pPositions == nullptr ? zvTextPosition{} : m_pPositions->of(node);
    }

private:
    zvFindingSink* m_pFindings = nullptr;
    zvXMLMemory m_memory;
    std::unique_ptr<zvXMLPositions> m_pPositions;   // null when nobody wants findings
    std::unique_ptr<zvXMLGuardedParser> m_pParser;  // owns the document that it parsed
    DOMDocument* m_pDocument;
};

zvDOMLoader::zvDOMLoader(zvFindingSink* findings, const zvXMLOptions& options)
    : m_pFindings(findings), m_options(options), m_result(0) {}
zvDOMLoader::~zvDOMLoader() = default;

bool zvDOMLoader::parse(const char* source, bool isFile) {
    return guarded(
        [&] { return isFile ? parseFile(source) : parseMemory(source, std::strlen(source), nullptr); });
}

bool zvDOMLoader::parseText(const zvString& text) {
    constexpr wchar16 byteOrderMark = 0xFEFF;
    return guarded([&] {
        const int start = text[0] == byteOrderMark ? 1 : 0;
        return parseMemory(text.data() + start, static_cast<std::size_t>(text.size() - start),
                           XMLUni::fgXMLChEncodingString);
    });
}

bool zvDOMLoader::parseFile(const char* location) {
    const File file = fileAt(location);
    const zvString path(zvPlatform::textOf(file.path).c_str());
    if (path.empty()) {
        logger.raise("XML document refused: \"", location, "\" is not a name in this locale");
    }
    m_pTree = std::make_unique<Tree>(file.folder, file.size, m_options, m_pFindings);
    return parseStream(path, zvXMLSource::streamOf(zvPlatform::openBytes(file.path)), nullptr);
}

template <typename Character>
bool zvDOMLoader::parseMemory(const Character* text, std::size_t length, const XMLCh* encoding) {
    m_pTree = std::make_unique<Tree>(fs::path(), length, m_options, m_pFindings);
    auto stream =
        std::make_unique<BinMemInputStream>(reinterpret_cast<const XMLByte*>(text),
                                            length * sizeof(Character), BinMemInputStream::BufOpt_Reference);
    return parseStream("taag", std::move(stream), encoding);
}

bool zvDOMLoader::parseStream(const zvString& systemId, std::unique_ptr<BinInputStream> stream,
                              const XMLCh* encoding) {
    m_result = m_pTree->parse(systemId, std::move(stream), encoding);
    return m_result.isOk() && m_pTree->document() != nullptr;
}

// No exception of the XML library leaves, and a failed parse leaves no document.
template <typename Parse>
bool zvDOMLoader::guarded(Parse parse) {
    m_pTree.reset();
    m_result = zvResult(0);
    try {
        if (parse()) {
            return true;
        }
    } catch (const zvException& exception) {
        report(exception.getResult().getMessage());  // logged where it was refused
    } catch (const XMLException& exception) {
        logger.error("Error during parsing: '", "Exception message is:  ", toString(exception.getMessage()));
        report(toString(exception.getMessage()));
    } catch (const DOMException& exception) {
        logger.error("DOM Error during parsing: '", "Message is: ", toString(exception.getMessage()));
        report(toString(exception.getMessage()));
    } catch (const OutOfMemoryException&) {
        constexpr const char* reason =
            "no memory left, or more of it taken than a document of its size may take";
        logger.error("Unexpected exception during parsing: '", reason);
        report(reason);
    } catch (...) {
        logger.error("Unexpected exception during parsing: '");
        report("unexpected exception");
    }
    m_pTree.reset();
    return false;
}

void zvDOMLoader::report(const zvString& text) const {
    if (m_pFindings != nullptr) {
        zvFinding finding;
        finding.kind = zvFindingKind::notLoaded;
        finding.text = text;
        m_pFindings->report(finding);
    }
}

bool zvDOMLoader::createDocument(const zvString& rootName, const zvString& namespaceURI) {
    constexpr const char* failure = "Unexpected exception during creating document: '";
    m_pTree.reset();
    try {
        DOMImplementation* const implementation = DOMImplementationRegistry::getDOMImplementation(u"Core");
        m_pTree = std::make_unique<Tree>(implementation->createDocument(zvXMLChars(namespaceURI).get(),
                                                                        zvXMLChars(rootName).get(), nullptr));
        return true;
    } catch (const DOMException& exception) {
        logger.error(failure, toString(exception.getMessage()));
    } catch (const XMLException& exception) {
        logger.error(failure, toString(exception.getMessage()));
    } catch (...) {
        logger.error(failure);
    }
    return false;
}

DOMDocument* zvDOMLoader::getDocument() const { return m_pTree == nullptr ? nullptr : m_pTree->document(); }

zvTextPosition zvDOMLoader::getPosition(const DOMNode* node) const {
    return m_pTree == nullptr ? zvTextPosition{} : m_pTree->positionOf(node);
}

void zvDOMLoader::releaseDocument() { m_pTree.reset(); }

zvResult zvDOMLoader::getResult() const { return m_result; }
