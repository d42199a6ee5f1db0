#ifndef ZV_CND_CONDITION_FACTORY_H
#define ZV_CND_CONDITION_FACTORY_H

#include "zvCndCondition.h"
#include "zvICndComparisonCondition.h"
#include "zvICndListCondition.h"
#include "zvICndLogicalCondition.h"
#include "zvICndNotCondition.h"

/// Creates conditions and converts handles between types.
class ZV_EXPORT zvCndConditionFactory {
public:
    zvCndConditionFactory();
    zvCndConditionFactory(const zvCndConditionFactory& other);
    virtual ~zvCndConditionFactory();

    zvCndConditionFactory& operator=(const zvCndConditionFactory& other);

    /// @name New conditions
    /// Each is owned by the returned handle. Operands are not validated.
    /// @{
    static zvCndEqualsCondition createEqualsCondition(const zvCndOperand& lhs, const zvCndOperand& rhs);
    static zvCndNotEqualsCondition createNotEqualsCondition(const zvCndOperand& lhs, const zvCndOperand& rhs);
    static zvCndLessThanCondition createLessThanCondition(const zvCndOperand& lhs, const zvCndOperand& rhs);
    static zvCndLessThanEqualsCondition createLessThanEqualsCondition(const zvCndOperand& lhs,
                                                                      const zvCndOperand& rhs);
    static zvCndGreaterThanCondition createGreaterThanCondition(const zvCndOperand& lhs,
                                                                const zvCndOperand& rhs);
    static zvCndGreaterThanEqualsCondition createGreaterThanEqualsCondition(const zvCndOperand& lhs,
                                                                            const zvCndOperand& rhs);
    /// Moves from the operands; null for a type that is not one of the six comparisons.
    static zvCndComparisonCondition createComparisonCondition(zvCndConditionTypeEnum type, zvCndOperand&& lhs,
                                                              zvCndOperand&& rhs);
    static zvCndAndCondition createAndCondition();
    static zvCndOrCondition createOrCondition();
    static zvCndNotCondition createNotCondition();
    /// @}

    /// @name Upcasts
    /// A null handle stays null.
    /// @{
    template <class Special>
    static zvCndCondition getCondition(const zvCndHandle<Special>& condition) {
        return condition.operator->();
    }
    template <class Special>
    static zvCndComparisonCondition getComparisonCondition(const zvCndHandle<Special>& condition) {
        return condition.operator->();
    }
    template <class Special>
    static zvCndLogicalCondition getLogicalCondition(const zvCndHandle<Special>& condition) {
        return condition.operator->();
    }
    /// @}

    /// @name Downcasts
    /// A null handle and a condition of another type are logged and thrown as a zvException whose result's
    /// message is "Received condition is not ...".
    /// @{
    static zvCndComparisonCondition getComparisonCondition(const zvCndCondition& condition);
    static zvCndLogicalCondition getLogicalCondition(const zvCndCondition& condition);
    template <class General>
    static zvCndEqualsCondition getEqualsCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndEqualsCondition>(condition);
    }
    template <class General>
    static zvCndNotEqualsCondition getNotEqualsCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndNotEqualsCondition>(condition);
    }
    template <class General>
    static zvCndLessThanCondition getLessThanCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndLessThanCondition>(condition);
    }
    template <class General>
    static zvCndLessThanEqualsCondition getLessThanEqualsCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndLessThanEqualsCondition>(condition);
    }
    template <class General>
    static zvCndGreaterThanCondition getGreaterThanCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndGreaterThanCondition>(condition);
    }
    template <class General>
    static zvCndGreaterThanEqualsCondition getGreaterThanEqualsCondition(
        const zvCndHandle<General>& condition) {
        return narrow<zvICndGreaterThanEqualsCondition>(condition);
    }
    template <class General>
    static zvCndAndCondition getAndCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndAndCondition>(condition);
    }
    template <class General>
    static zvCndOrCondition getOrCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndOrCondition>(condition);
    }
    template <class General>
    static zvCndNotCondition getNotCondition(const zvCndHandle<General>& condition) {
        return narrow<zvICndNotCondition>(condition);
    }
    /// @}

private:
    template <class Special, class General>
    static Special* narrow(const zvCndHandle<General>& condition) {
        requireType(condition.operator->(), Special::type);
        return static_cast<Special*>(condition.operator->());
    }

    static void requireType(const zvICndCondition* condition, zvCndConditionTypeEnum type);
};

#endif
