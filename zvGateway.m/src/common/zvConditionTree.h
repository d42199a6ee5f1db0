#ifndef ZV_CONDITION_TREE_H
#define ZV_CONDITION_TREE_H

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "zvCndCondition.h"
#include "zvString.h"

/// Walks condition trees; their depth is only limited by memory, so that callers keep a stack of their own.
namespace zvConditionTree {

bool isComparison(zvCndConditionTypeEnum type);

/// The children of a logical condition, in the order of evaluation; none of a comparison.
std::vector<zvCndCondition> childrenOf(const zvCndCondition& condition);

/// The names of the attributes that it compares; none of a null handle.
std::set<zvString> variablesOf(const zvCndCondition& condition);

/// The blanks before the line of a part that is so many levels below the root; of a very deep one no more,
/// since no indent would help to read it.
std::string indentOf(std::size_t depth);

}  // namespace zvConditionTree

#endif
