#ifndef ZV_I_CND_NOT_CONDITION_H
#define ZV_I_CND_NOT_CONDITION_H

#include "zvICndLogicalCondition.h"

/// The negation of its one child, without which it must not be evaluated.
class ZV_EXPORT zvICndNotCondition : public zvICndLogicalCondition {
public:
    static constexpr zvCndConditionTypeEnum type = zvCndConditionNot;

    zvICndNotCondition();
    ~zvICndNotCondition() override;

    /// Replaces the child. False, with nothing changed, for a null handle.
    bool setCondition(const zvCndCondition& condition);
    /// A null handle when there is no child.
    zvCndCondition getCondition() const { return m_condition; }

    zvCndChildren children() const override;

protected:
    void moveChildrenTo(std::vector<zvCndCondition>& conditions) override;

private:
    zvCndCondition m_condition;
};

using zvCndNotCondition = zvCndHandle<zvICndNotCondition>;

#endif
