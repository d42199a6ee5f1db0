#include "zvFaultyMemory.h"

#include <cstdlib>

namespace {

int allocationsLeft = -1;
bool failsOnce = false;
bool failed = false;
long livingAllocations = 0;

void* take(std::size_t size) {
    if (allocationsLeft == 0) {
        failed = true;
        allocationsLeft = failsOnce ? -1 : 0;
        return nullptr;
    }
    if (allocationsLeft > 0) {
        --allocationsLeft;
    }
    ++livingAllocations;
    return std::malloc(size == 0 ? 1 : size);
}

void giveBack(void* memory) {
    if (memory != nullptr) {
        --livingAllocations;
        std::free(memory);
    }
}

}  // namespace

namespace zvFaultyMemory {

void allow(int allocations) {
    allocationsLeft = allocations;
    failsOnce = false;
    failed = false;
}

void failOnceAfter(int allocations) {
    allow(allocations);
    failsOnce = true;
}

bool hasFailed() { return failed; }

long living() { return livingAllocations; }

}  // namespace zvFaultyMemory

void* operator new(std::size_t size) {
    void* const memory = take(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return take(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return take(size); }
void* operator new[](std::size_t size) { return ::operator new(size); }
void operator delete(void* memory) noexcept { giveBack(memory); }
void operator delete(void* memory, std::size_t) noexcept { giveBack(memory); }
void operator delete[](void* memory) noexcept { giveBack(memory); }
void operator delete[](void* memory, std::size_t) noexcept { giveBack(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { giveBack(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { giveBack(memory); }
