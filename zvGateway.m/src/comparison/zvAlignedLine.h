#ifndef ZV_ALIGNED_LINE_H
#define ZV_ALIGNED_LINE_H

#include <cstddef>
#include <vector>

#include "zvString.h"

/// A line of a tree.
struct zvTreeLine {
    std::size_t depth = 0;
    zvString text;

    bool operator==(const zvTreeLine& other) const { return depth == other.depth && text == other.text; }
};

/// A line of two trees beside each other.
struct zvAlignedLine {
    enum class Side { both, before, after };

    Side side = Side::both;
    zvTreeLine line;
};

/// The lines of both in their order, as many as possible as lines of both.
std::vector<zvAlignedLine> zvAlign(const std::vector<zvTreeLine>& before,
                                   const std::vector<zvTreeLine>& after);

#endif
