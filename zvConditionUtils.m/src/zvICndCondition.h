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

/// A boolean expression over named attributes, created by zvCndConditionFactory and held in a handle,
/// zvCndCondition or a typed one. Cycles are not detected: a condition added below itself leaks.
class ZV_EXPORT zvICndCondition : public zvReferenceCtr {
public:
    ~zvICndCondition() override;

    /// Whether the condition is true for the attributes in `context`. Throws the zvException of zvValue if
    /// two values cannot be compared.
    virtual bool evaluate(const zvCndContext& context) const = 0;
    zvCndConditionTypeEnum getConditionType() const { return m_conditionType; }

protected:
    /// Precondition: And, Or and Not are the types of classes derived from zvICndLogicalCondition only.
    explicit zvICndCondition(zvCndConditionTypeEnum type = zvCndConditionNone) : m_conditionType(type) {}

private:
    zvCndConditionTypeEnum m_conditionType;
};

/// A class that differs from its base only in the condition type.
template <class Base, zvCndConditionTypeEnum Type>
class ZV_EXPORT zvICndOfType : public Base {
public:
    static constexpr zvCndConditionTypeEnum type = Type;

    template <class... Arguments>
    explicit zvICndOfType(Arguments&&... arguments) : Base(Type, std::forward<Arguments>(arguments)...) {}
};

#endif
