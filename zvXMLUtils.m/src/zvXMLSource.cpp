#include "zvXMLSource.h"

#include <cstdio>
#include <utility>

#include "zvXMLText.h"

using xercesc::BinInputStream;
using xercesc::MemoryManager;

namespace {

class GuardedStream : public BinInputStream {
public:
    GuardedStream(std::unique_ptr<BinInputStream> stream, zvXMLReadGuard& guard)
        : m_pStream(std::move(stream)), m_guard(guard) {}

    XMLFilePos curPos() const override { return m_pStream->curPos(); }
    XMLSize_t readBytes(XMLByte* const out, const XMLSize_t most) override {
        m_guard.beforeReading();
        return m_pStream->readBytes(out, most);
    }
    const XMLCh* getContentType() const override { return m_pStream->getContentType(); }

private:
    std::unique_ptr<BinInputStream> m_pStream;
    zvXMLReadGuard& m_guard;
};

class FileStream : public BinInputStream {
public:
    explicit FileStream(zvPlatform::File file) : m_file(std::move(file)), m_position(0) {}

    XMLFilePos curPos() const override { return m_position; }
    XMLSize_t readBytes(XMLByte* const out, const XMLSize_t most) override {
        const XMLSize_t bytes = std::fread(out, 1, most, m_file.get());
        m_position += bytes;
        return bytes;
    }
    const XMLCh* getContentType() const override { return nullptr; }

private:
    zvPlatform::File m_file;
    XMLFilePos m_position;
};

}  // namespace

zvXMLSource::zvXMLSource(const zvString& systemId, std::unique_ptr<BinInputStream> stream,
                         zvXMLReadGuard& guard, MemoryManager* memory)
    : InputSource(zvXMLChars(systemId).get(), memory), m_pStream(std::move(stream)), m_guard(guard) {}

std::unique_ptr<BinInputStream> zvXMLSource::streamOf(zvPlatform::File file) {
    return file == nullptr ? nullptr : std::make_unique<FileStream>(std::move(file));
}

BinInputStream* zvXMLSource::makeStream() const {
    return m_pStream == nullptr ? nullptr
                                : new (getMemoryManager()) GuardedStream(std::move(m_pStream), m_guard);
}
