#ifndef ZV_I_CND_CONDITION_H
#define ZV_I_CND_CONDITION_H

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
///
/// A copy has the type of its original; an assignment keeps the type, which belongs to the class.
class ZV_EXPORT zvICndCondition : public zvReferenceCtr {
public:
    zvICndCondition(const zvICndCondition& other);
    zvICndCondition& operator=(const zvICndCondition& other);
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

#endif
