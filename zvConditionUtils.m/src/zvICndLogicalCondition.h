#ifndef ZV_I_CND_LOGICAL_CONDITION_H
#define ZV_I_CND_LOGICAL_CONDITION_H

#include <vector>

#include "zvCndCondition.h"

/// The range of a logical condition's children that remain to be visited.
struct zvCndChildren {
    const zvCndCondition* next = nullptr;
    const zvCndCondition* end = nullptr;
};

/// The base of AND, OR and NOT, the inner nodes of a condition tree. Evaluation and destruction are
/// iterative: trees of any depth take a bounded amount of stack.
class ZV_EXPORT zvICndLogicalCondition : public zvICndCondition {
public:
    ~zvICndLogicalCondition() override;

    /// Evaluates the tree of logical conditions iteratively, and its leaves with their evaluate().
    bool evaluate(const zvCndContext& context) const override;

    /// The children in the order of evaluation, owned by the condition.
    virtual zvCndChildren children() const = 0;

    /// Downcasts `condition`; null if it is null or not a logical condition. Ownership stays with its
    /// handles.
    static zvICndLogicalCondition* from(const zvCndCondition& condition);

protected:
    explicit zvICndLogicalCondition(zvCndConditionTypeEnum type) : zvICndCondition(type) {}

    /// Moves the children to the end of `conditions`.
    virtual void moveChildrenTo(std::vector<zvCndCondition>& conditions) = 0;
    /// Releases the conditions and, iteratively, the descendants without another owner. Destructors call it
    /// with their children, since recursive destruction would overflow the stack.
    static void release(std::vector<zvCndCondition>& conditions);
};

using zvCndLogicalCondition = zvCndHandle<zvICndLogicalCondition>;

#endif
