#ifndef ZV_XML_MEMORY_H
#define ZV_XML_MEMORY_H

#include <cstdint>
#include <xercesc/framework/MemoryManager.hpp>

/// The memory manager of one parse and its document, with limits in proportion to the size of the source:
/// entity expansion beyond them ends in the XML library's OutOfMemoryException.
///
/// Only large allocations are refused: readers, buffers and blocks of nodes. They are the ones that entities
/// cause, and the XML library is exception-safe at these points.
class zvXMLMemory : public xercesc::MemoryManager {
public:
    zvXMLMemory();
    zvXMLMemory(const zvXMLMemory&) = delete;
    zvXMLMemory& operator=(const zvXMLMemory&) = delete;
    /// Frees whatever the XML library has leaked.
    ~zvXMLMemory() override;

    /// Raises the limits for `sourceBytes` more bytes of source.
    void allowFor(std::uintmax_t sourceBytes);
    /// The bytes of source that it was raised for.
    std::uintmax_t sourceBytes() const { return m_sourceBytes; }
    /// How often memory was asked for.
    std::uintmax_t allocations() const { return m_allocations; }
    /// Removes the limits, after the parse: the document belongs to the program.
    void lift();

    xercesc::MemoryManager* getExceptionMemoryManager() override;
    void* allocate(XMLSize_t size) override;
    void deallocate(void* memory) override;

private:
    struct Bytes {
        std::uintmax_t held;
        std::uintmax_t handedOut;  // in total, freed or not: entity expansion allocates much
    };
    struct Block;

    Block* take(XMLSize_t size);
    void giveBack(Block* block);

    static const Bytes forAnySource;
    static const Bytes forSourceByte;

    Bytes m_used;
    Bytes m_limits;
    std::uintmax_t m_sourceBytes;
    std::uintmax_t m_allocations;
    bool m_bRefused;
    Block* m_pBlocks;
};

#endif
