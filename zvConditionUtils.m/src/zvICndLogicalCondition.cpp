#include "zvICndLogicalCondition.h"

#include <array>
#include <cstddef>
#include <memory_resource>
#include <typeinfo>
#include <utility>

#include "zvICndListCondition.h"
#include "zvICndNotCondition.h"

namespace {

// Null unless the condition is of one of the library's own classes: a class derived from one may have an
// evaluate() of its own.
const zvICndLogicalCondition* asPlain(const zvICndCondition& condition) {
    const auto ifOfType = [&condition](const std::type_info& made) {
        return typeid(condition) == made ? static_cast<const zvICndLogicalCondition*>(&condition) : nullptr;
    };
    switch (condition.getConditionType()) {
        case zvCndConditionAnd:
            return ifOfType(typeid(zvICndAndCondition));
        case zvCndConditionOr:
            return ifOfType(typeid(zvICndOrCondition));
        case zvCndConditionNot:
            return ifOfType(typeid(zvICndNotCondition));
        default:
            return nullptr;
    }
}

// A condition whose children are being evaluated.
struct OpenCondition {
    explicit OpenCondition(const zvICndLogicalCondition& condition)
        : type(condition.getConditionType()), rest(condition.children()) {}

    zvCndConditionTypeEnum type;
    zvCndChildren rest;
};

// Trees up to this depth are evaluated without heap allocation.
constexpr std::size_t usualDepth = 16;

// The result before the first child is evaluated; final if there are no children, when AND is false too.
bool initialResult(const OpenCondition& condition) {
    return condition.type == zvCndConditionAnd && condition.rest.next != condition.rest.end;
}

// The short circuit: whether the last child's result decides the condition's.
bool isDecided(const OpenCondition& condition, bool lastResult) {
    return condition.rest.next == condition.rest.end ||
           (condition.type == zvCndConditionAnd && !lastResult) ||
           (condition.type == zvCndConditionOr && lastResult);
}

// AddRef() is the only access to the reference count.
bool hasOneOwner(zvICndCondition& condition) {
    const bool one = condition.AddRef() == 2;
    condition.Release();
    return one;
}

}  // namespace

zvICndLogicalCondition::zvICndLogicalCondition(const zvICndLogicalCondition& other) = default;

zvICndLogicalCondition::~zvICndLogicalCondition() = default;

zvICndLogicalCondition& zvICndLogicalCondition::operator=(const zvICndLogicalCondition&) = default;

zvCndChildren zvICndLogicalCondition::children() const { return {}; }

void zvICndLogicalCondition::moveChildrenTo(std::vector<zvCndCondition>&) {}

zvICndLogicalCondition* zvICndLogicalCondition::from(const zvCndCondition& condition) {
    if (condition.IsNull()) {
        return nullptr;
    }
    switch (condition->getConditionType()) {
        case zvCndConditionAnd:
        case zvCndConditionOr:
        case zvCndConditionNot:
            return static_cast<zvICndLogicalCondition*>(condition.operator->());
        default:
            return nullptr;
    }
}

bool zvICndLogicalCondition::evaluateTree(const zvCndContext& context) const {
    // Deliberately uninitialised: clearing it would take longer than the evaluation.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
    alignas(OpenCondition) std::array<std::byte, usualDepth * sizeof(OpenCondition)> memory;
    std::pmr::monotonic_buffer_resource resource(memory.data(), memory.size());
    std::pmr::vector<OpenCondition> open(&resource);
    open.reserve(usualDepth);
    open.emplace_back(*this);
    bool result = initialResult(open.back());
    while (!open.empty()) {
        OpenCondition& current = open.back();
        if (isDecided(current, result)) {
            result = result != (current.type == zvCndConditionNot);
            open.pop_back();
            continue;
        }
        const zvCndCondition& child = *current.rest.next++;
        if (const zvICndLogicalCondition* const logical = asPlain(*child.operator->())) {
            open.emplace_back(*logical);
            result = initialResult(open.back());
        } else {
            result = child->evaluate(context);
        }
    }
    return result;
}

void zvICndLogicalCondition::release(std::vector<zvCndCondition>& conditions) {
    while (!conditions.empty()) {
        const zvCndCondition next = std::move(conditions.back());
        conditions.pop_back();
        zvICndLogicalCondition* const logical = from(next);
        if (logical != nullptr && hasOneOwner(*logical)) {
            logical->moveChildrenTo(conditions);
        }
    }
}
