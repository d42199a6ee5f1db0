#ifndef ZV_CND_CONDITION_LIST_H
#define ZV_CND_CONDITION_LIST_H

#include <vector>

#include "zvCndCondition.h"

/// A list of conditions in insertion order, with shared ownership.
class ZV_EXPORT zvCndConditionList {
public:
    zvCndConditionList();
    zvCndConditionList(const zvCndConditionList& other);
    virtual ~zvCndConditionList();

    zvCndConditionList& operator=(const zvCndConditionList& other);

    /// False, with nothing changed, for a null handle.
    bool addCondition(const zvCndCondition& condition) { return append(condition.operator->()); }
    template <class Implementation>
    bool addCondition(const zvCndHandle<Implementation>& condition) {
        return append(condition.operator->());
    }
    /// Null if `index` is out of range.
    zvCndCondition getCondition(int index) const;
    /// The last condition; null for an empty list.
    zvCndCondition back() const;
    /// Removes the last condition, if any.
    void pop();
    bool empty() const { return m_conditions.empty(); }
    int numConditions() const { return static_cast<int>(m_conditions.size()); }
    void clear();

private:
    friend class zvICndListCondition;

    bool append(zvICndCondition* condition);

    std::vector<zvCndCondition> m_conditions;
};

#endif
