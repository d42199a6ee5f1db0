#ifndef ZV_CND_CONDITION_RESULT_MAP_H
#define ZV_CND_CONDITION_RESULT_MAP_H

#include <map>

#include "zvICndListCondition.h"

/// A map from conditions to results. Keys are compared by identity, not by content.
class ZV_EXPORT zvCndConditionResultMap {
public:
    zvCndConditionResultMap();
    zvCndConditionResultMap(const zvCndConditionResultMap& other);
    virtual ~zvCndConditionResultMap();

    zvCndConditionResultMap& operator=(const zvCndConditionResultMap& other);

    /// False, with nothing changed, if a handle is null or the condition has a result already.
    bool addConditionResult(const zvCndCondition& condition, const zvCndOrCondition& result);
    /// The condition's result; null if there is none.
    zvCndOrCondition getConditionResult(const zvCndCondition& condition) const;

private:
    std::map<zvCndCondition, zvCndOrCondition> m_results;
};

#endif
