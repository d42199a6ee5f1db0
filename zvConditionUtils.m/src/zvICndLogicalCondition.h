#ifndef ZV_I_CND_LOGICAL_CONDITION_H
#define ZV_I_CND_LOGICAL_CONDITION_H

#include <vector>

#include "zvCndCondition.h"

/// A logical condition's children that are still to be looked at, first to last.
struct zvCndChildren {
    const zvCndCondition* next = nullptr;
    const zvCndCondition* end = nullptr;
};

/// What AND, OR and NOT have in common: they stand above other conditions. A tree of any depth is evaluated
/// and freed with a bounded amount of stack.
class ZV_EXPORT zvICndLogicalCondition : public zvICndCondition {
public:
    ~zvICndLogicalCondition() override;

    /// Goes through the whole tree of logical conditions below this one, and asks the others' evaluate().
    bool evaluate(const zvCndContext& context) const override;

    /// The children themselves, owned by the condition, in the order of evaluation.
    virtual zvCndChildren children() const = 0;

    /// `condition` as a logical one, owned by its handles; null when it is none or the handle is null.
    static zvICndLogicalCondition* from(const zvCndCondition& condition);

protected:
    explicit zvICndLogicalCondition(zvCndConditionTypeEnum type) : zvICndCondition(type) {}

    /// Leaves this condition without children.
    virtual void moveChildrenTo(std::vector<zvCndCondition>& conditions) = 0;
    /// Releases the conditions one after the other, and what is below them when nobody else owns it.
    /// Destructors call it with the children, since a child that dies within its parent's end overflows the
    /// stack in the end.
    static void release(std::vector<zvCndCondition>& conditions);
};

using zvCndLogicalCondition = zvCndHandle<zvICndLogicalCondition>;

#endif
