#include "zvXMLMemory.h"

#include <cstddef>
#include <limits>
#include <new>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>

using xercesc::MemoryManager;
using xercesc::OutOfMemoryException;
using xercesc::XMLPlatformUtils;

struct alignas(std::max_align_t) zvXMLMemory::Block {
    Block* previous;
    Block* next;
    XMLSize_t size;
};

namespace {

constexpr std::uintmax_t unlimited = std::numeric_limits<std::uintmax_t>::max();
constexpr std::uintmax_t megabyte = 1'000'000;
constexpr XMLSize_t largeAllocation = 65'536;

// `base` + `perByte` * `bytes`, saturated.
std::uintmax_t raised(std::uintmax_t base, std::uintmax_t perByte, std::uintmax_t bytes) {
    return bytes > (unlimited - base) / perByte ? unlimited : base + perByte * bytes;
}

}  // namespace

// Benign documents hold at most 90 bytes per byte of source; each expansion of an entity allocates 160 KiB.
const zvXMLMemory::Bytes zvXMLMemory::forAnySource = {64 * megabyte, 2'000 * megabyte};
const zvXMLMemory::Bytes zvXMLMemory::forSourceByte = {128, 256};

zvXMLMemory::zvXMLMemory()
    : m_used{},
      m_limits(forAnySource),
      m_sourceBytes(0),
      m_allocations(0),
      m_bRefused(false),
      m_pBlocks(nullptr) {}

zvXMLMemory::~zvXMLMemory() {
    while (m_pBlocks != nullptr) {
        giveBack(m_pBlocks);
    }
}

void zvXMLMemory::allowFor(std::uintmax_t sourceBytes) {
    m_sourceBytes = raised(m_sourceBytes, 1, sourceBytes);
    m_limits = {raised(m_limits.held, forSourceByte.held, sourceBytes),
                raised(m_limits.handedOut, forSourceByte.handedOut, sourceBytes)};
}

void zvXMLMemory::lift() { m_limits = {unlimited, unlimited}; }

MemoryManager* zvXMLMemory::getExceptionMemoryManager() {
    // Exceptions may outlive this object.
    return XMLPlatformUtils::fgMemoryManager->getExceptionMemoryManager();
}

void* zvXMLMemory::allocate(XMLSize_t size) {
    try {
        Block* const block = take(size);
        if (m_pBlocks != nullptr) {
            m_pBlocks->previous = block;
        }
        m_pBlocks = block;
        return block + 1;
    } catch (const OutOfMemoryException&) {
        m_bRefused = true;
        throw;
    }
}

zvXMLMemory::Block* zvXMLMemory::take(XMLSize_t size) {
    const Bytes used = {m_used.held + size, m_used.handedOut + size};
    if (size >= largeAllocation && (used.held > m_limits.held || used.handedOut > m_limits.handedOut ||
                                    size > std::numeric_limits<XMLSize_t>::max() - sizeof(Block))) {
        throw OutOfMemoryException();
    }
    void* const memory = XMLPlatformUtils::fgMemoryManager->allocate(sizeof(Block) + size);
    m_used = used;
    ++m_allocations;
    return new (memory) Block{nullptr, m_pBlocks, size};
}

// After a refusal nothing is freed before the destructor: the XML library may free a block twice when its
// replacement fails.
void zvXMLMemory::deallocate(void* memory) {
    if (memory != nullptr && !m_bRefused) {
        giveBack(static_cast<Block*>(memory) - 1);
    }
}

void zvXMLMemory::giveBack(Block* block) {
    (block->previous == nullptr ? m_pBlocks : block->previous->next) = block->next;
    if (block->next != nullptr) {
        block->next->previous = block->previous;
    }
    m_used.held -= block->size;
    XMLPlatformUtils::fgMemoryManager->deallocate(block);
}
