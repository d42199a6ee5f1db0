#ifndef ZV_I_CND_LOGICAL_CONDITION_H
#define ZV_I_CND_LOGICAL_CONDITION_H

#include <vector>

#include "zvCndCondition.h"

/// The range of a logical condition's children that remain to be visited.
struct zvCndChildren {
    const zvCndCondition* next = nullptr;
    const zvCndCondition* end = nullptr;
};

/// The base of AND, OR and NOT, the inner nodes of a condition tree. Their evaluation and destruction are
/// iterative: trees of any depth take a bounded amount of stack. A derived class with an evaluate() of its
/// own is evaluated by that, wherever it stands in a tree.
class ZV_EXPORT zvICndLogicalCondition : public zvICndCondition {
public:
    zvICndLogicalCondition(const zvICndLogicalCondition& other);
    zvICndLogicalCondition& operator=(const zvICndLogicalCondition& other);
    ~zvICndLogicalCondition() override;

    /// The children in the order of evaluation, owned by the condition; none for a class that does not say.
    virtual zvCndChildren children() const;

    /// Downcasts `condition`; null unless it is an AND, an OR or a NOT. Ownership stays with its handles.
    static zvICndLogicalCondition* from(const zvCndCondition& condition);

protected:
    explicit zvICndLogicalCondition(zvCndConditionTypeEnum type = zvCndConditionNone)
        : zvICndCondition(type) {}

    /// Moves the children() to the end of `conditions`.
    virtual void moveChildrenTo(std::vector<zvCndCondition>& conditions);
    /// Evaluates this AND, OR or NOT with the whole tree of the library's own ones below it, iteratively, and
    /// all other conditions with their evaluate().
    bool evaluateTree(const zvCndContext& context) const;
    /// Releases the conditions and, iteratively, the descendants without another owner. Destructors call it
    /// with their children, since recursive destruction would overflow the stack.
    static void release(std::vector<zvCndCondition>& conditions);
};

using zvCndLogicalCondition = zvCndHandle<zvICndLogicalCondition>;

#endif
