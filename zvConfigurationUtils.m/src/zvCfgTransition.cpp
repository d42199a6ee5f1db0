#include "zvCfgTransition.h"

#include <iterator>

namespace {

constexpr const char* typeNames[] = {"Promote", "Demote"};

}  // namespace

zvCfgTransition::zvCfgTransition(zvCfgTransitionTypeEnum type, const zvString& toState)
    : m_type(type), m_strToState(toState) {}

zvCfgTransition::zvCfgTransition(const zvCfgTransition& other) = default;

zvCfgTransition::~zvCfgTransition() = default;

zvCfgTransition& zvCfgTransition::operator=(const zvCfgTransition& other) = default;

zvString zvCfgTransition::typeName(zvCfgTransitionTypeEnum type) {
    const auto index = static_cast<std::size_t>(type);
    return index < std::size(typeNames) ? typeNames[index] : zvString();
}

bool zvCfgTransition::typeOf(const zvString& name, zvCfgTransitionTypeEnum& type) {
    for (const auto candidate : {zvCfgTransitionPromote, zvCfgTransitionDemote}) {
        if (typeNames[candidate] == name) {
            type = candidate;
            return true;
        }
    }
    return false;
}
