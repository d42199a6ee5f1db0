#ifndef ZV_I_CND_LIST_CONDITION_H
#define ZV_I_CND_LIST_CONDITION_H

#include "zvCndConditionList.h"
#include "zvICndLogicalCondition.h"

/// The base of AND and OR: a list of children, evaluated in order with short circuit. Without children both
/// are false.
class ZV_EXPORT zvICndListCondition : public zvICndLogicalCondition {
public:
    zvICndListCondition(const zvICndListCondition& other);
    zvICndListCondition& operator=(const zvICndListCondition& other);
    ~zvICndListCondition() override;

    /// Appends a child. False, with nothing changed, for null.
    bool addCondition(const zvCndCondition& condition);
    int numConditions() const;
    /// Null if `index` is out of range.
    zvCndCondition getCondition(int index) const;

    zvCndChildren children() const override;

protected:
    explicit zvICndListCondition(zvCndConditionTypeEnum type = zvCndConditionNone);

    void moveChildrenTo(std::vector<zvCndCondition>& conditions) override;

private:
    zvCndConditionList m_conditions;
};

/// AND or OR.
template <zvCndConditionTypeEnum Type>
class ZV_EXPORT zvICndListOfType : public zvICndListCondition {
public:
    static constexpr zvCndConditionTypeEnum type = Type;

    zvICndListOfType() : zvICndListCondition(Type) {}

    bool evaluate(const zvCndContext& context) const override { return evaluateTree(context); }
};

using zvICndAndCondition = zvICndListOfType<zvCndConditionAnd>;
using zvICndOrCondition = zvICndListOfType<zvCndConditionOr>;

using zvCndAndCondition = zvCndHandle<zvICndAndCondition>;
using zvCndOrCondition = zvCndHandle<zvICndOrCondition>;

#endif
