#ifndef ZV_LIFECYCLE_WAYS_H
#define ZV_LIFECYCLE_WAYS_H

#include <vector>

#include "zvComparedPart.h"
#include "zvDifference.h"

/// Which states of a lifecycle can be reached from which, along any number of transitions.
namespace zvLifecycleWays {

/// A difference for each state of both lifecycles from which other states of both can be reached than before.
std::vector<zvDifference> changes(const zvComparedPart& before, const zvComparedPart& after);

}  // namespace zvLifecycleWays

#endif
