#include "zvCfgLcmState.h"

zvCfgLcmState::zvCfgLcmState() = default;

zvCfgLcmState::~zvCfgLcmState() = default;

void zvCfgLcmState::addOutgoingTransition(const zvCfgTransition& transition) {
    m_transitions.add(new zvCfgTransition(transition));
}

int zvCfgLcmState::numOutgoingTransitions() const { return m_transitions.size(); }

const zvCfgTransition* zvCfgLcmState::getOutgoingTransition(int i) const { return m_transitions.at(i); }
