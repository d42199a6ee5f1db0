#include "zvAlignedLine.h"

#include <algorithm>

namespace {

using Lines = std::vector<zvTreeLine>;
using Aligned = std::vector<zvAlignedLine>;
using Side = zvAlignedLine::Side;

// Larger trees are told as one that is replaced by another, as far as they differ.
constexpr std::size_t largestTable = 4'000'000;

// The lengths of the longest common sequences of what follows two places.
class Table {
public:
    Table(const Lines& before, const Lines& after, std::size_t begin, std::size_t endBefore,
          std::size_t endAfter)
        : m_begin(begin), m_columns(endAfter - begin + 1), m_lengths((endBefore - begin + 1) * m_columns) {
        for (std::size_t i = endBefore; i-- > begin;) {
            for (std::size_t k = endAfter; k-- > begin;) {
                at(i, k) =
                    before[i] == after[k] ? at(i + 1, k + 1) + 1 : std::max(at(i + 1, k), at(i, k + 1));
            }
        }
    }
    int& at(std::size_t i, std::size_t k) { return m_lengths[(i - m_begin) * m_columns + (k - m_begin)]; }

private:
    std::size_t m_begin;
    std::size_t m_columns;
    std::vector<int> m_lengths;
};

void alignMiddle(const Lines& before, const Lines& after, std::size_t begin, std::size_t endBefore,
                 std::size_t endAfter, Aligned& result) {
    std::size_t i = begin;
    std::size_t k = begin;
    if ((endBefore - begin + 1) * (endAfter - begin + 1) <= largestTable) {
        Table table(before, after, begin, endBefore, endAfter);
        while (i < endBefore && k < endAfter) {
            if (before[i] == after[k]) {
                result.push_back({Side::both, before[i++]});
                ++k;
            } else if (table.at(i + 1, k) >= table.at(i, k + 1)) {
                result.push_back({Side::before, before[i++]});
            } else {
                result.push_back({Side::after, after[k++]});
            }
        }
    }
    for (; i < endBefore; ++i) {
        result.push_back({Side::before, before[i]});
    }
    for (; k < endAfter; ++k) {
        result.push_back({Side::after, after[k]});
    }
}

}  // namespace

Aligned zvAlign(const Lines& before, const Lines& after) {
    const std::size_t shorter = std::min(before.size(), after.size());
    std::size_t same = 0;
    while (same < shorter && before[same] == after[same]) {
        ++same;
    }
    std::size_t sameAtEnd = 0;
    while (sameAtEnd < shorter - same &&
           before[before.size() - 1 - sameAtEnd] == after[after.size() - 1 - sameAtEnd]) {
        ++sameAtEnd;
    }
    Aligned result;
    for (std::size_t i = 0; i < same; ++i) {
        result.push_back({Side::both, before[i]});
    }
    alignMiddle(before, after, same, before.size() - sameAtEnd, after.size() - sameAtEnd, result);
    for (std::size_t i = before.size() - sameAtEnd; i < before.size(); ++i) {
        result.push_back({Side::both, before[i]});
    }
    return result;
}
