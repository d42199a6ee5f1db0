#include "zvICndNotCondition.h"

#include <utility>

zvICndNotCondition::zvICndNotCondition() : zvICndLogicalCondition(type) {}

zvICndNotCondition::zvICndNotCondition(const zvICndNotCondition& other) = default;

zvICndNotCondition& zvICndNotCondition::operator=(const zvICndNotCondition& other) = default;

zvICndNotCondition::~zvICndNotCondition() {
    if (from(m_condition) != nullptr) {
        std::vector<zvCndCondition> conditions;
        zvICndNotCondition::moveChildrenTo(conditions);
        release(conditions);
    }
}

bool zvICndNotCondition::evaluate(const zvCndContext& context) const { return evaluateTree(context); }

bool zvICndNotCondition::setCondition(const zvCndCondition& condition) {
    if (condition.IsNull()) {
        return false;
    }
    m_condition = condition;
    return true;
}

zvCndChildren zvICndNotCondition::children() const {
    return {&m_condition, &m_condition + (m_condition.IsNull() ? 0 : 1)};
}

void zvICndNotCondition::moveChildrenTo(std::vector<zvCndCondition>& conditions) {
    if (!m_condition.IsNull()) {
        conditions.push_back(std::move(m_condition));
    }
}
