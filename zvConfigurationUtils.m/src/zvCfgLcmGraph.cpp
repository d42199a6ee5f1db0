#include "zvCfgLcmGraph.h"

#include <utility>

#include "zvCfgPathSearch.h"
#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgLcmGraph");

constexpr int maxPaths = 1000;
constexpr int maxSteps = 20000000;

// The edges of a search: the transitions of the selected type.
class SelectedTransitions {
public:
    SelectedTransitions(int states, const zvString& selector)
        : m_search(states),
          m_bAll(selector.empty()),
          m_bAny(m_bAll || zvCfgTransition::typeOf(selector, m_type)),
          m_lastFrom{std::vector<int>(static_cast<std::size_t>(states), -1),
                     std::vector<int>(static_cast<std::size_t>(states), -1)} {}

    bool wants(const zvCfgTransition& transition) const {
        return m_bAny && (m_bAll || transition.getType() == m_type);
    }

    // Duplicate transitions of a state are one edge.
    void add(int from, int to, const zvCfgTransition& transition) {
        int& lastFrom =
            m_lastFrom[transition.getType() == zvCfgTransitionDemote][static_cast<std::size_t>(to)];
        if (lastFrom != from) {
            lastFrom = from;
            m_search.addEdge(from, to);
            m_edges.push_back({&transition, to});
        }
    }

    zvCfgPathSearch::Result find(int from, int to) const {
        return m_search.find(from, to, maxPaths, maxSteps);
    }

    const zvCfgTransition* transition(int edge) const {
        return m_edges[static_cast<std::size_t>(edge)].transition;
    }
    int target(int edge) const { return m_edges[static_cast<std::size_t>(edge)].to; }

private:
    struct Edge {
        const zvCfgTransition* transition;
        int to;
    };

    zvCfgPathSearch m_search;
    zvCfgTransitionTypeEnum m_type = zvCfgTransitionPromote;
    bool m_bAll;
    bool m_bAny;
    std::vector<int> m_lastFrom[2];  // for each type and target state, the source of the last edge added
    std::vector<Edge> m_edges;
};

}  // namespace

zvCfgLcmGraph::zvCfgLcmGraph(const zvString& objectType) : m_strObjectType(objectType) {}

zvCfgLcmGraph::~zvCfgLcmGraph() = default;

bool zvCfgLcmGraph::addState(zvCfgLcmState* state) {
    const int number = m_states.size();
    m_states.add(state);
    bool added = true;
    const auto check = [&](bool inserted, const char* message, int line = __builtin_LINE()) {
        if (!inserted) {
            logger.error({message, line});
            added = false;
        }
    };
    const zvString& name = state->localName();
    check(m_byIndex.try_emplace(state->getIndex(), number).second,
          "Failed to add LcmState in Indexed LcmState Map");
    check(!name.empty() && m_byLocalName.try_emplace(name, number).second,
          "Failed to add LcmState in LocalName based map");
    check(!state->key().empty() && m_byKey.try_emplace(state->key(), number).second,
          "Failed to add LcmState in Key based map");
    if (!state->remoteName().empty()) {
        check(m_byRemoteName.try_emplace(state->remoteName(), number).second,
              "Failed to add LcmState in RemoteName based map");
    }
    return added;
}

bool zvCfgLcmGraph::addRemoteName(const zvString& localName, const zvString& remoteName) {
    const auto found = m_byLocalName.find(localName);
    if (remoteName.empty() || found == m_byLocalName.end() ||
        !m_byRemoteName.try_emplace(remoteName, found->second).second) {
        return false;
    }
    zvCfgLcmState* const state = m_states.at(found->second);
    if (state->remoteName().empty()) {
        state->setRemoteName(remoteName);
    }
    return true;
}

template <class Key>
const zvCfgLcmState* zvCfgLcmGraph::stateIn(const std::map<Key, int>& index, const Key& key) const {
    const auto found = index.find(key);
    return found == index.end() ? nullptr : m_states.at(found->second);
}

const zvCfgLcmState* zvCfgLcmGraph::getStateByIndex(int index) const { return stateIn(m_byIndex, index); }

const zvCfgLcmState* zvCfgLcmGraph::getStateByKey(const zvString& key) const { return stateIn(m_byKey, key); }

const zvCfgLcmState* zvCfgLcmGraph::getStateByLocalName(const zvString& name) const {
    return stateIn(m_byLocalName, name);
}

const zvCfgLcmState* zvCfgLcmGraph::getStateByRemoteName(const zvString& name) const {
    return stateIn(m_byRemoteName, name);
}

int zvCfgLcmGraph::numberOf(const zvString& name) const {
    for (const Index* const index : {&m_byLocalName, &m_byRemoteName}) {
        const auto found = index->find(name);
        if (found != index->end()) {
            return found->second;
        }
    }
    return -1;
}

int zvCfgLcmGraph::getStateIndex(const zvString& name) const {
    const zvCfgLcmState* const state = m_states.at(numberOf(name));
    return state == nullptr ? -1 : state->getIndex();
}

bool zvCfgLcmGraph::getTransitionPaths(const zvString& fromState, const zvString& toState,
                                       const zvString& selector, zvCfgTransitionPathList& paths) const {
    paths.clear();
    const int from = numberOf(fromState);
    const int to = numberOf(toState);
    if (from < 0 || to < 0) {
        return false;
    }
    SelectedTransitions transitions(numStates(), selector);
    for (int number = 0; number < numStates(); ++number) {
        const zvCfgLcmState& state = *m_states.at(number);
        for (int i = 0; i < state.numOutgoingTransitions(); ++i) {
            const zvCfgTransition& transition = *state.getOutgoingTransition(i);
            const auto target = m_byLocalName.find(transition.toState());
            if (transitions.wants(transition) && target != m_byLocalName.end()) {
                transitions.add(number, target->second, transition);
            }
        }
    }
    const zvCfgPathSearch::Result found = transitions.find(from, to);
    for (const zvCfgPathSearch::Path& edges : found.paths) {
        zvCfgTransitionPath path(m_states.at(from));
        for (const int edge : edges) {
            path.add(transitions.transition(edge), m_states.at(transitions.target(edge)));
        }
        paths.add(std::move(path));
    }
    if (found.outcome == zvCfgPathSearch::Outcome::tooManyPaths) {
        logger.warn("Transition paths from state \"", fromState, "\" to state \"", toState,
                    "\" of object type \"", m_strObjectType, "\" are cut off at ", maxPaths);
    } else if (found.outcome == zvCfgPathSearch::Outcome::tooManySteps) {
        logger.warn("Search for transition paths from state \"", fromState, "\" to state \"", toState,
                    "\" of object type \"", m_strObjectType, "\" is given up after ", maxSteps,
                    " steps, paths found : ", paths.size());
    }
    return paths.size() > 0;
}
