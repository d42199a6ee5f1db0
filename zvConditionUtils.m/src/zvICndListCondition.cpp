#include "zvICndListCondition.h"

#include <iterator>

zvICndListCondition::zvICndListCondition(zvCndConditionTypeEnum type) : zvICndLogicalCondition(type) {}

zvICndListCondition::zvICndListCondition(const zvICndListCondition& other) = default;

zvICndListCondition& zvICndListCondition::operator=(const zvICndListCondition& other) = default;

zvICndListCondition::~zvICndListCondition() { release(m_conditions.m_conditions); }

bool zvICndListCondition::addCondition(const zvCndCondition& condition) {
    return m_conditions.addCondition(condition);
}

int zvICndListCondition::numConditions() const { return m_conditions.numConditions(); }

zvCndCondition zvICndListCondition::getCondition(int index) const { return m_conditions.getCondition(index); }

zvCndChildren zvICndListCondition::children() const {
    const auto& conditions = m_conditions.m_conditions;
    return {conditions.data(), conditions.data() + conditions.size()};
}

void zvICndListCondition::moveChildrenTo(std::vector<zvCndCondition>& conditions) {
    auto& own = m_conditions.m_conditions;
    conditions.insert(conditions.end(), std::make_move_iterator(own.begin()),
                      std::make_move_iterator(own.end()));
    own.clear();
}
