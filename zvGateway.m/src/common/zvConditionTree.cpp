#include "zvConditionTree.h"

#include <algorithm>

#include "zvCndConditionFactory.h"

std::string zvConditionTree::indentOf(std::size_t depth) {
    constexpr std::size_t deepest = 40;
    return std::string(2 * std::min(depth, deepest), ' ');
}

bool zvConditionTree::isComparison(zvCndConditionTypeEnum type) {
    return type >= zvCndConditionEquals && type <= zvCndConditionGreaterThanEquals;
}

std::vector<zvCndCondition> zvConditionTree::childrenOf(const zvCndCondition& condition) {
    std::vector<zvCndCondition> children;
    const auto collect = [&children](const auto& list) {
        for (int i = 0; i < list->numConditions(); ++i) {
            children.push_back(list->getCondition(i));
        }
    };
    switch (condition->getConditionType()) {
        case zvCndConditionAnd:
            collect(zvCndConditionFactory::getAndCondition(condition));
            break;
        case zvCndConditionOr:
            collect(zvCndConditionFactory::getOrCondition(condition));
            break;
        case zvCndConditionNot:
            children.push_back(zvCndConditionFactory::getNotCondition(condition)->getCondition());
            break;
        default:
            break;
    }
    return children;
}
