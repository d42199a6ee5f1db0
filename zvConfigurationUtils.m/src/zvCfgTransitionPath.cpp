#include "zvCfgTransitionPath.h"

#include "zvCfgOwner.h"

zvCfgTransitionPath::zvCfgTransitionPath(const zvCfgLcmState* start) : m_states{start} {}

zvCfgTransitionPath::zvCfgTransitionPath(const zvCfgTransitionPath& other) = default;

zvCfgTransitionPath::zvCfgTransitionPath(zvCfgTransitionPath&& other) noexcept = default;

zvCfgTransitionPath::~zvCfgTransitionPath() = default;

zvCfgTransitionPath& zvCfgTransitionPath::operator=(const zvCfgTransitionPath& other) = default;

void zvCfgTransitionPath::add(const zvCfgTransition* transition, const zvCfgLcmState* state) {
    m_transitions.push_back(transition);
    m_states.push_back(state);
}

int zvCfgTransitionPath::size() const { return static_cast<int>(m_transitions.size()); }

const zvCfgLcmState* zvCfgTransitionPath::getStateAt(int i) const { return zvCfgEntryAt(m_states, i); }

const zvCfgTransition* zvCfgTransitionPath::getTransitionAt(int i) const {
    return zvCfgEntryAt(m_transitions, i);
}
