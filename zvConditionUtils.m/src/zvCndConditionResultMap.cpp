#include "zvCndConditionResultMap.h"

zvCndConditionResultMap::zvCndConditionResultMap() = default;

zvCndConditionResultMap::zvCndConditionResultMap(const zvCndConditionResultMap& other) = default;

zvCndConditionResultMap::~zvCndConditionResultMap() = default;

zvCndConditionResultMap& zvCndConditionResultMap::operator=(const zvCndConditionResultMap& other) = default;

bool zvCndConditionResultMap::addConditionResult(const zvCndCondition& condition,
                                                 const zvCndOrCondition& result) {
    return !condition.IsNull() && !result.IsNull() && m_results.emplace(condition, result).second;
}

zvCndOrCondition zvCndConditionResultMap::getConditionResult(const zvCndCondition& condition) const {
    const auto found = m_results.find(condition);
    return found == m_results.end() ? zvCndOrCondition() : found->second;
}
