#ifndef ZV_CANDIDATE_ORDER_H
#define ZV_CANDIDATE_ORDER_H

#include <vector>

#include "zvComparedPart.h"
#include "zvDifference.h"
#include "zvPartMatching.h"

/// The candidates of a type are tried in their order, so that it counts between them, and between them alone.
namespace zvCandidateOrder {

/// A group for each type with candidates that have changed places, or that others have joined.
std::vector<zvDifferenceGroup> changes(const std::vector<zvComparedPart>& before,
                                       const std::vector<zvComparedPart>& after,
                                       const zvPartMatching& matching);

}  // namespace zvCandidateOrder

#endif
