#ifndef ZV_PART_COMPARISON_H
#define ZV_PART_COMPARISON_H

#include <vector>

#include "zvComparedPart.h"
#include "zvDifference.h"

/// Compares two versions of one part of a configuration, and the parts in them.
namespace zvPartComparison {

/// The differences; either part may be null, for one that was added or removed.
std::vector<zvDifference> differences(const zvComparedPart* before, const zvComparedPart* after);

}  // namespace zvPartComparison

#endif
