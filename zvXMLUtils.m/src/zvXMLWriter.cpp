#include "zvXMLWriter.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <string>
#include <system_error>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/TransService.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "zvCharString.h"
#include "zvLogSource.h"
#include "zvPath.h"
#include "zvPlatform.h"
#include "zvXMLText.h"
#include "zvXMLWalk.h"

using xercesc::DOMDocument;
using xercesc::DOMError;
using xercesc::DOMErrorHandler;
using xercesc::DOMException;
using xercesc::DOMImplementationLS;
using xercesc::DOMImplementationRegistry;
using xercesc::DOMLSOutput;
using xercesc::DOMLSSerializer;
using xercesc::DOMNode;
using xercesc::MemBufFormatTarget;
using xercesc::TranscodeFromStr;
using xercesc::XMLException;
using xercesc::XMLFormatTarget;
using xercesc::XMLUni;
using zvXMLText::toString;

namespace {

constexpr zvLogSource logger("zvXMLUtils.m/src/zvXMLWriter");

// The XML library's serialiser is recursive and takes less than 200 bytes of stack per level.
constexpr int deepestLevel = 2'000;

bool isTooDeep(DOMNode& top) {
    int depth = 0;
    for (DOMNode* node = &top; node != nullptr && depth <= deepestLevel;) {
        node = zvXMLWalk::next(node, &top, depth);
    }
    return depth > deepestLevel;
}

// Keeps the first reason, since what follows is a consequence of it.
class Complaints : public DOMErrorHandler {
public:
    bool handleError(const DOMError& error) override {
        if (m_strReason.empty()) {
            m_strReason = toString(error.getMessage());
        }
        return error.getSeverity() == DOMError::DOM_SEVERITY_WARNING;
    }
    const zvString& reason() const { return m_strReason; }

private:
    zvString m_strReason;
};

struct Release {
    template <typename Releasable>
    void operator()(Releasable* object) const {
        object->release();
    }
};

void serialise(DOMDocument& document, XMLFormatTarget& target, const XMLCh* encoding) {
    DOMImplementationLS* const implementation = DOMImplementationRegistry::getDOMImplementation(u"LS");
    const std::unique_ptr<DOMLSSerializer, Release> serializer(implementation->createLSSerializer());
    const std::unique_ptr<DOMLSOutput, Release> output(implementation->createLSOutput());
    Complaints complaints;
    serializer->setNewLine(u"\n");
    serializer->getDomConfig()->setParameter(XMLUni::fgDOMErrorHandler, &complaints);
    output->setByteStream(&target);
    output->setEncoding(encoding);
    if (!serializer->write(&document, output.get())) {
        logger.raise("The document cannot be written: ", complaints.reason());
    }
}

[[noreturn]] void refuse(const char* target) {
    const zvString reason(std::generic_category().message(errno).c_str());
    logger.raise("The data cannot be written to ", target, ": ", reason);
}

void put(const MemBufFormatTarget& bytes, std::FILE* file, const char* target) {
    const std::size_t length = bytes.getLen();
    if (std::fwrite(bytes.getRawBuffer(), 1, length, file) != length || std::fflush(file) != 0) {
        refuse(target);
    }
}

}  // namespace

void zvXMLWriter::write(DOMDocument& document, XMLFormatTarget& target, const zvString& encoding) {
    if (isTooDeep(document)) {
        logger.raise("The document cannot be written: its elements are nested in more than ", deepestLevel,
                     " levels");
    }
    try {
        serialise(document, target, zvXMLChars(encoding).get());
    } catch (const XMLException& exception) {
        logger.raise("The document cannot be written: ", toString(exception.getMessage()));
    } catch (const DOMException& exception) {
        logger.raise("The document cannot be written: ", toString(exception.getMessage()));
    }
}

void zvXMLWriter::toFile(const MemBufFormatTarget& bytes, const zvString& path) {
    const std::string name = zvPath::native(path);
    zvPlatform::File file = zvPlatform::openForWriting(name.c_str());
    if (file == nullptr) {
        refuse(name.c_str());
    }
    put(bytes, file.get(), name.c_str());
    if (std::fclose(file.release()) != 0) {
        refuse(name.c_str());
    }
}

void zvXMLWriter::toStandardOutput(const MemBufFormatTarget& bytes) { put(bytes, stdout, "standard output"); }

zvString zvXMLWriter::toText(const MemBufFormatTarget& bytes, const zvString& encoding) {
    try {
        const TranscodeFromStr decoded(bytes.getRawBuffer(), bytes.getLen(), zvCharString(encoding).data());
        return toString(decoded.str());
    } catch (const XMLException& exception) {
        logger.raise("The document cannot be written: ", toString(exception.getMessage()));
    }
}
