#ifndef ZV_MALLOC_H
#define ZV_MALLOC_H

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

/// Memory for the start of the JVM, without which the process cannot do its job and exits.
namespace zvMalloc {

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <typename Element>
using Array = std::unique_ptr<Element[], Free>;

/// An uninitialised array of `count` elements of a trivial type. Out of memory, it prints "malloc" with the
/// system's reason and ends the process with exit code 1.
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
