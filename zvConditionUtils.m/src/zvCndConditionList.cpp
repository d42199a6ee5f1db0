#include "zvCndConditionList.h"

namespace {

constexpr std::size_t usualSize = 4;

}  // namespace

zvCndConditionList::zvCndConditionList() = default;

zvCndConditionList::zvCndConditionList(const zvCndConditionList& other) = default;

zvCndConditionList::~zvCndConditionList() = default;

zvCndConditionList& zvCndConditionList::operator=(const zvCndConditionList& other) = default;

bool zvCndConditionList::append(zvICndCondition* condition) {
    if (condition == nullptr) {
        return false;
    }
    if (m_conditions.capacity() == 0) {
        m_conditions.reserve(usualSize);
    }
    m_conditions.emplace_back(condition);
    return true;
}

zvCndCondition zvCndConditionList::getCondition(int index) const {
    return index >= 0 && index < numConditions() ? m_conditions[static_cast<std::size_t>(index)]
                                                 : zvCndCondition();
}

zvCndCondition zvCndConditionList::back() const { return empty() ? zvCndCondition() : m_conditions.back(); }

void zvCndConditionList::pop() {
    if (!empty()) {
        m_conditions.pop_back();
    }
}

void zvCndConditionList::clear() { m_conditions.clear(); }
