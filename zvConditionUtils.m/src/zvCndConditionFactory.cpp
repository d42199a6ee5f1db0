#include "zvCndConditionFactory.h"

#include <utility>

#include "zvCndOperator.h"
#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvConditionUtils.m/src/zvCndConditionFactory");

using CreateComparison = zvICndComparisonCondition* (*)(zvCndOperand&&, zvCndOperand&&);

template <class Comparison>
zvICndComparisonCondition* create(zvCndOperand&& lhs, zvCndOperand&& rhs) {
    return new Comparison(std::move(lhs), std::move(rhs));
}

// Indexed by type, starting with Equals.
constexpr CreateComparison createComparisons[] = {
    create<zvICndEqualsCondition>,      create<zvICndNotEqualsCondition>,
    create<zvICndLessThanCondition>,    create<zvICndLessThanEqualsCondition>,
    create<zvICndGreaterThanCondition>, create<zvICndGreaterThanEqualsCondition>,
};

// `expected` names the expected type in the message.
void require(bool isExpected, const char* expected) {
    if (!isExpected) {
        logger.raise("Received condition is not ", expected, "Condition");
    }
}

}  // namespace

zvCndConditionFactory::zvCndConditionFactory() = default;

zvCndConditionFactory::zvCndConditionFactory(const zvCndConditionFactory& other) = default;

zvCndConditionFactory::~zvCndConditionFactory() = default;

zvCndConditionFactory& zvCndConditionFactory::operator=(const zvCndConditionFactory&) = default;

zvCndEqualsCondition zvCndConditionFactory::createEqualsCondition(const zvCndOperand& lhs,
                                                                  const zvCndOperand& rhs) {
    return new zvICndEqualsCondition(zvCndOperand(lhs), zvCndOperand(rhs));
}

zvCndNotEqualsCondition zvCndConditionFactory::createNotEqualsCondition(const zvCndOperand& lhs,
                                                                        const zvCndOperand& rhs) {
    return new zvICndNotEqualsCondition(zvCndOperand(lhs), zvCndOperand(rhs));
}

zvCndLessThanCondition zvCndConditionFactory::createLessThanCondition(const zvCndOperand& lhs,
                                                                      const zvCndOperand& rhs) {
    return new zvICndLessThanCondition(zvCndOperand(lhs), zvCndOperand(rhs));
}

zvCndLessThanEqualsCondition zvCndConditionFactory::createLessThanEqualsCondition(const zvCndOperand& lhs,
                                                                                  const zvCndOperand& rhs) {
    return new zvICndLessThanEqualsCondition(zvCndOperand(lhs), zvCndOperand(rhs));
}

zvCndGreaterThanCondition zvCndConditionFactory::createGreaterThanCondition(const zvCndOperand& lhs,
                                                                            const zvCndOperand& rhs) {
    return new zvICndGreaterThanCondition(zvCndOperand(lhs), zvCndOperand(rhs));
}

zvCndGreaterThanEqualsCondition zvCndConditionFactory::createGreaterThanEqualsCondition(
    const zvCndOperand& lhs, const zvCndOperand& rhs) {
    return new zvICndGreaterThanEqualsCondition(zvCndOperand(lhs), zvCndOperand(rhs));
}

zvCndComparisonCondition zvCndConditionFactory::createComparisonCondition(zvCndConditionTypeEnum type,
                                                                          zvCndOperand&& lhs,
                                                                          zvCndOperand&& rhs) {
    const zvCndOperator* const made = zvCndOperator::of(type);
    const bool isComparison = made != nullptr && made->isComparison();
    return isComparison ? createComparisons[type - zvCndConditionEquals](std::move(lhs), std::move(rhs))
                        : nullptr;
}

zvCndAndCondition zvCndConditionFactory::createAndCondition() { return new zvICndAndCondition; }

zvCndOrCondition zvCndConditionFactory::createOrCondition() { return new zvICndOrCondition; }

zvCndNotCondition zvCndConditionFactory::createNotCondition() { return new zvICndNotCondition; }

zvCndComparisonCondition zvCndConditionFactory::getComparisonCondition(const zvCndCondition& condition) {
    const zvCndOperator* const made =
        condition.IsNull() ? nullptr : zvCndOperator::of(condition->getConditionType());
    require(made != nullptr && made->isComparison(), "Comparison");
    return static_cast<zvICndComparisonCondition*>(condition.operator->());
}

zvCndLogicalCondition zvCndConditionFactory::getLogicalCondition(const zvCndCondition& condition) {
    zvICndLogicalCondition* const logical = zvICndLogicalCondition::from(condition);
    require(logical != nullptr, "Logical");
    return logical;
}

void zvCndConditionFactory::requireType(const zvICndCondition* condition, zvCndConditionTypeEnum type) {
    require(condition != nullptr && condition->getConditionType() == type, zvCndOperator::of(type)->name);
}
