#ifndef ZV_XML_SOURCE_H
#define ZV_XML_SOURCE_H

#include <memory>
#include <xercesc/sax/InputSource.hpp>
#include <xercesc/util/BinInputStream.hpp>

#include "zvPlatform.h"
#include "zvString.h"

/// Is asked before each block of a source is read, also in the middle of a tag; throws to end the parse.
class zvXMLReadGuard {
public:
    zvXMLReadGuard() = default;
    zvXMLReadGuard(const zvXMLReadGuard&) = delete;
    zvXMLReadGuard& operator=(const zvXMLReadGuard&) = delete;

    virtual void beforeReading() = 0;

protected:
    ~zvXMLReadGuard() = default;
};

/// A source of the XML library that is already open, and so can be read once.
class zvXMLSource : public xercesc::InputSource {
public:
    /// `stream` may be null: a source that cannot be opened. `guard` outlives the source's reading.
    zvXMLSource(const zvString& systemId, std::unique_ptr<xercesc::BinInputStream> stream,
                zvXMLReadGuard& guard, xercesc::MemoryManager* memory);

    /// A file that was opened here: the XML library's own conversion of names may know another encoding. Null
    /// for null.
    static std::unique_ptr<xercesc::BinInputStream> streamOf(zvPlatform::File file);

    /// Owned by the caller; null for a source that cannot be opened, and the second time.
    xercesc::BinInputStream* makeStream() const override;

private:
    mutable std::unique_ptr<xercesc::BinInputStream> m_pStream;
    zvXMLReadGuard& m_guard;
};

#endif
