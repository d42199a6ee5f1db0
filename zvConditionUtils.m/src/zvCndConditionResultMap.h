#ifndef ZV_CND_CONDITION_RESULT_MAP_H
#define ZV_CND_CONDITION_RESULT_MAP_H

#include <map>

#include "zvICndListCondition.h"

/// What conditions result in, each looked up by its identity: an equal text does not make an equal condition.
class ZV_EXPORT zvCndConditionResultMap {
public:
    zvCndConditionResultMap();
    zvCndConditionResultMap(const zvCndConditionResultMap& other);
    virtual ~zvCndConditionResultMap();

    zvCndConditionResultMap& operator=(const zvCndConditionResultMap& other);

    /// False, with nothing changed, when a handle is null or the condition has a result already.
    bool addConditionResult(const zvCndCondition& condition, const zvCndOrCondition& result);
    /// A null handle when there is none.
    zvCndOrCondition getConditionResult(const zvCndCondition& condition) const;

private:
    std::map<zvCndCondition, zvCndOrCondition> m_results;
};

#endif
