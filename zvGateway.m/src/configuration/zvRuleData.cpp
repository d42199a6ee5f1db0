#include "zvRuleData.h"

#include <nlohmann/json.hpp>
#include <vector>

#include "zvCndConditionFactory.h"
#include "zvConditionTree.h"
#include "zvICndComparisonCondition.h"
#include "zvUtf8.h"

using nlohmann::json;

namespace {

// In the order of zvCndConditionTypeEnum.
constexpr const char* operators[] = {"", "=", "!=", "<", "<=", ">", ">=", "AND", "OR", "NOT"};

std::string textOf(const zvCndOperand& operand) {
    const char* const mark = operand.getValueType() == zvOperandVariable ? "{" : "'";
    return mark + zvUtf8::encode(operand.getValue().getStrValue());
}

}  // namespace

// With a stack of its own: a rule may be nested more deeply than the process's stack allows.
std::string zvRuleData::of(const zvCndCondition& rule) {
    json parts = json::array();
    std::vector<zvCndCondition> open{rule};
    while (!open.empty()) {
        const zvCndCondition part = open.back();
        open.pop_back();
        const zvCndConditionTypeEnum type = part->getConditionType();
        if (zvConditionTree::isComparison(type)) {
            const zvCndComparisonCondition comparison = zvCndConditionFactory::getComparisonCondition(part);
            parts.push_back(
                {operators[type], textOf(comparison->getLHSOperand()), textOf(comparison->getRHSOperand())});
            continue;
        }
        const std::vector<zvCndCondition> children = zvConditionTree::childrenOf(part);
        parts.push_back({operators[type], children.size()});
        open.insert(open.end(), children.rbegin(), children.rend());
    }
    return parts.dump();
}
