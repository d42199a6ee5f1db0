#include "zvICndLogicalCondition.h"

#include <array>
#include <cstddef>
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
    zvCndConditionTypeEnum type;
    const zvCndCondition* next;
    const zvCndCondition* end;

    static OpenCondition of(const zvICndLogicalCondition& condition) {
        const zvCndChildren children = condition.children();
        return {condition.getConditionType(), children.next, children.end};
    }
};

// A stack that allocates nothing for trees of a usual depth. Its array is deliberately uninitialised:
// clearing it would take longer than the evaluation.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init)
class OpenConditions {
public:
    bool empty() const { return m_size == 0; }
    void push(const OpenCondition& condition) {
        if (m_size < usualDepth) {
            m_usual[m_size] = condition;
        } else {
            m_deep.push_back(condition);
        }
        ++m_size;
    }
    OpenCondition pop() {
        if (--m_size < usualDepth) {
            return m_usual[m_size];
        }
        const OpenCondition last = m_deep.back();
        m_deep.pop_back();
        return last;
    }

private:
    static constexpr std::size_t usualDepth = 16;

    std::array<OpenCondition, usualDepth> m_usual;
    std::vector<OpenCondition> m_deep;
    std::size_t m_size = 0;
};

// The result before the first child is evaluated; final if there are no children, when AND is false too.
bool initialResult(const OpenCondition& condition) {
    return condition.type == zvCndConditionAnd && condition.next != condition.end;
}

// The short circuit: whether the last child's result decides the condition's.
bool isDecided(const OpenCondition& condition, bool lastResult) {
    return condition.next == condition.end || (condition.type == zvCndConditionAnd && !lastResult) ||
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
    OpenConditions outer;
    OpenCondition current = OpenCondition::of(*this);
    bool result = initialResult(current);
    while (true) {
        if (isDecided(current, result)) {
            result = result != (current.type == zvCndConditionNot);
            if (outer.empty()) {
                return result;
            }
            current = outer.pop();
            continue;
        }
        const zvICndCondition& child = *(current.next++)->operator->();
        if (const zvICndLogicalCondition* const logical = asPlain(child)) {
            outer.push(current);
            current = OpenCondition::of(*logical);
            result = initialResult(current);
        } else {
            result = child.evaluate(context);
        }
    }
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
