#ifndef ZV_MALLOC_H
#define ZV_MALLOC_H

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

/// Memory for what the Java virtual machine is started with: without it the process cannot do its job, and
/// ends.
namespace zvMalloc {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <typename Element>
using Array = std::unique_ptr<Element[], Free>;

/// An array of `count` elements of a plain type, not initialised. A failure prints "malloc" with the system's
/// reason and ends the process with exit code 1.
template <typename Element>
Array<Element> allocate(std::size_t count) {
    void* const memory = count <= SIZE_MAX / sizeof(Element) ? std::malloc(count * sizeof(Element)) : nullptr;
    if (memory == nullptr) {
        std::perror("malloc");
        std::exit(1);
    }
    return Array<Element>(static_cast<Element*>(memory));
}

}  // namespace zvMalloc

#endif
