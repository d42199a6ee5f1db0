#ifndef ZV_RULE_DATA_H
#define ZV_RULE_DATA_H

#include <string>

#include "zvCndCondition.h"

/// A mapping rule as it was read, for the script of a page.
namespace zvRuleData {

/// A JSON list of the rule's parts, parents before their children, which come in the order of evaluation:
/// `["AND",2]` has two children, `["<","{rev","'2"]` compares an attribute with a constant. The rule is not
/// null.
std::string of(const zvCndCondition& rule);

}  // namespace zvRuleData

#endif
