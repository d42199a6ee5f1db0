#ifndef ZV_STRING_BUFFER_H
#define ZV_STRING_BUFFER_H

#include <algorithm>
#include <climits>
#include <cstddef>
#include <new>
#include <string>

/// What zvString's source files share: the lengths of texts and the allocation of buffers.
namespace zvStringBuffer {

constexpr std::size_t longestText = INT_MAX - 1;  // its terminator has to be counted in an int as well

/// The length of `text`, as far as a zvString can hold it.
template <typename Unit>
int lengthOf(const Unit* text) {
    return static_cast<int>(std::min(std::char_traits<Unit>::length(text), longestText));
}

/// The length of `text`, `n` at most.
template <typename Unit>
int lengthOf(const Unit* text, int n) {
    const Unit* const end = std::char_traits<Unit>::find(text, static_cast<std::size_t>(n), Unit{0});
    return end == nullptr ? n : static_cast<int>(end - text);
}

/// A buffer of `count` characters, to be given back to `::operator delete`; null without memory.
template <typename Character>
Character* allocate(std::size_t count) {
    return static_cast<Character*>(::operator new(count * sizeof(Character), std::nothrow));
}

}  // namespace zvStringBuffer

#endif
