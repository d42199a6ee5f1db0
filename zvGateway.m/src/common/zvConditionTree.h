#ifndef ZV_CONDITION_TREE_H
#define ZV_CONDITION_TREE_H

#include <vector>

#include "zvCndCondition.h"

/// Walks condition trees; their depth is only limited by memory, so that callers keep a stack of their own.
namespace zvConditionTree {

bool isComparison(zvCndConditionTypeEnum type);

/// The children of a logical condition, in the order of evaluation; none of a comparison.
std::vector<zvCndCondition> childrenOf(const zvCndCondition& condition);

}  // namespace zvConditionTree

#endif
