#ifndef ZV_XML_MEMORY_H
#define ZV_XML_MEMORY_H

#include <cstdint>
#include <xercesc/framework/MemoryManager.hpp>

/// The memory of one parse and its document, in proportion to what is parsed: a document whose entities
/// multiply meets the limits as the XML library's OutOfMemoryException.
///
/// Only large allocations are refused, which are those that entities lead to: readers, buffers and blocks of
/// nodes, none of which the XML library asks for in the middle of something that it could not leave again.
class zvXMLMemory : public xercesc::MemoryManager {
public:
    zvXMLMemory();
    zvXMLMemory(const zvXMLMemory&) = delete;
    zvXMLMemory& operator=(const zvXMLMemory&) = delete;
    /// Gives back what the XML library has left behind.
    ~zvXMLMemory() override;

    /// Raises the limits for so many more bytes of source.
    void allowFor(std::uintmax_t sourceBytes);
    /// Ends all limits, once the document is there and belongs to the program.
    void lift();

    xercesc::MemoryManager* getExceptionMemoryManager() override;
    void* allocate(XMLSize_t size) override;
    void deallocate(void* memory) override;

private:
    struct Bytes {
        std::uintmax_t held;
        std::uintmax_t handedOut;  // what was given back included: each expansion of an entity takes a lot
    };
    struct Block;

    Block* take(XMLSize_t size);
    void giveBack(Block* block);

    static const Bytes forAnySource;
    static const Bytes forSourceByte;

    Bytes m_used;
    Bytes m_limits;
    bool m_bRefused;
    Block* m_pBlocks;
};

#endif
