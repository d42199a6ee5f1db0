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

std::set<zvString> zvConditionTree::variablesOf(const zvCndCondition& condition) {
    std::set<zvString> names;
    std::vector<zvCndCondition> open{condition};
    while (!open.empty()) {
        const zvCndCondition part = open.back();
        open.pop_back();
        if (part.IsNull()) {
            continue;
        }
        if (!isComparison(part->getConditionType())) {
            const std::vector<zvCndCondition> children = childrenOf(part);
            open.insert(open.end(), children.begin(), children.end());
            continue;
        }
        const auto comparison = zvCndConditionFactory::getComparisonCondition(part);
        for (const zvCndOperand* const operand : {&comparison->lhsOperand(), &comparison->rhsOperand()}) {
            if (operand->getValueType() == zvOperandVariable) {
                names.insert(operand->value().getValue());
            }
        }
    }
    return names;
}
