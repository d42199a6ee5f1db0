#ifndef ZV_STRING_UNITS_H
#define ZV_STRING_UNITS_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "zvString.h"

/// The code units of short texts, several in one step: names and constants are compared and hashed for every
/// event.
namespace zvStringUnits {

constexpr int unitsOfAWord = 4;

template <typename Word>
Word wordAt(const wchar16* units) {
    Word word = 0;
    std::memcpy(&word, units, sizeof(word));
    return word;
}

/// Whether both texts have the same words at their beginning and at their end, where they may overlap.
template <typename Word>
bool haveEqualEnds(const wchar16* left, const wchar16* right, int length) {
    const int last = length - static_cast<int>(sizeof(Word) / sizeof(wchar16));
    return ((wordAt<Word>(left) ^ wordAt<Word>(right)) |
            (wordAt<Word>(left + last) ^ wordAt<Word>(right + last))) == 0;
}

/// Whether two texts of one length are equal.
[[gnu::always_inline]] inline bool areEqual(const wchar16* left, const wchar16* right, int length) {
    if (length > 2 * unitsOfAWord) {
        return std::memcmp(left, right, static_cast<std::size_t>(length) * sizeof(wchar16)) == 0;
    }
    if (length >= unitsOfAWord) {
        return haveEqualEnds<std::uint64_t>(left, right, length);
    }
    return length >= unitsOfAWord / 2 ? haveEqualEnds<std::uint32_t>(left, right, length)
                                      : length == 0 || *left == *right;
}

inline bool areEqual(const zvString& left, const zvString& right) {
    return left.size() == right.size() && areEqual(left.data(), right.data(), left.size());
}

inline std::uint32_t hashOf(const zvString& text) {
    constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15U;  // of the golden ratio: its bits are spread
    const auto mixed = [](std::uint64_t hash, std::uint64_t word) {
        hash = (hash ^ word) * multiplier;
        return hash ^ hash >> 32U;
    };
    const wchar16* const units = text.data();
    const int length = text.size();
    std::uint64_t hash = static_cast<unsigned>(length);
    if (length < unitsOfAWord) {
        for (int i = 0; i < length; ++i) {
            hash = hash << 16U | units[i];
        }
        return static_cast<std::uint32_t>(mixed(0, hash));
    }
    const int last = length - unitsOfAWord;
    for (int i = 0; i < last; i += unitsOfAWord) {
        hash = mixed(hash, wordAt<std::uint64_t>(units + i));
    }
    return static_cast<std::uint32_t>(mixed(hash, wordAt<std::uint64_t>(units + last)));
}

}  // namespace zvStringUnits

#endif
