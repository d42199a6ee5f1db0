#ifndef ZV_I_CND_CONDITION_H
#define ZV_I_CND_CONDITION_H

#include <utility>

#include "zvReferenceCtr.h"

class zvCndContext;

enum zvCndConditionTypeEnum : int {
    zvCndConditionNone = 0,
    zvCndConditionEquals = 1,
    zvCndConditionNotEquals = 2,
    zvCndConditionLessThan = 3,
    zvCndConditionLessThanEquals = 4,
    zvCndConditionGreaterThan = 5,
    zvCndConditionGreaterThanEquals = 6,
    zvCndConditionAnd = 7,
    zvCndConditionOr = 8,
    zvCndConditionNot = 9
};

/// A boolean expression over named attributes. Callers hold it in a handle, zvCndCondition or one of the
/// typed ones, and zvCndConditionFactory makes it. Nothing guards against a condition that is added below
/// itself, which is never freed.
class ZV_EXPORT zvICndCondition : public zvReferenceCtr {
public:
    ~zvICndCondition() override;

    /// Whether the condition holds for the attributes in `context`. Throws the zvException of zvValue when
    /// two values cannot be compared.
    virtual bool evaluate(const zvCndContext& context) const = 0;
    zvCndConditionTypeEnum getConditionType() const { return m_conditionType; }

protected:
    /// The types And, Or and Not are for descendants of zvICndLogicalCondition alone.
    explicit zvICndCondition(zvCndConditionTypeEnum type = zvCndConditionNone) : m_conditionType(type) {}

private:
    zvCndConditionTypeEnum m_conditionType;
};

/// The classes that differ from their base in the type alone.
template <class Base, zvCndConditionTypeEnum Type>
class ZV_EXPORT zvICndOfType : public Base {
public:
    static constexpr zvCndConditionTypeEnum type = Type;

    template <class... Arguments>
    explicit zvICndOfType(Arguments&&... arguments) : Base(Type, std::forward<Arguments>(arguments)...) {}
};

#endif
