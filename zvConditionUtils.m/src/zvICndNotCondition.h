#ifndef ZV_I_CND_NOT_CONDITION_H
#define ZV_I_CND_NOT_CONDITION_H

#include "zvICndLogicalCondition.h"

/// The negation of its child. Precondition of evaluation: the child is set.
class ZV_EXPORT zvICndNotCondition : public zvICndLogicalCondition {
public:
    static constexpr zvCndConditionTypeEnum type = zvCndConditionNot;

    zvICndNotCondition();
    zvICndNotCondition(const zvICndNotCondition& other);
    zvICndNotCondition& operator=(const zvICndNotCondition& other);
    ~zvICndNotCondition() override;

    bool evaluate(const zvCndContext& context) const override;

    /// Replaces the child. False, with nothing changed, for null.
    bool setCondition(const zvCndCondition& condition);
    /// The child; null if it is not set.
    zvCndCondition getCondition() const { return m_condition; }

    zvCndChildren children() const override;

protected:
    void moveChildrenTo(std::vector<zvCndCondition>& conditions) override;

private:
    zvCndCondition m_condition;
};

using zvCndNotCondition = zvCndHandle<zvICndNotCondition>;

#endif
