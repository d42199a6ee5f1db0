#include "zvConditionTree.h"

#include "zvCndConditionFactory.h"

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
