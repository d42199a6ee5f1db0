#ifndef ZV_CFG_LCM_GRAPH_H
#define ZV_CFG_LCM_GRAPH_H

#include <map>

#include "zvCfgLcmState.h"
#include "zvCfgTransitionPathList.h"

/// The lifecycle of one object type: a directed graph of states and transitions.
class ZV_EXPORT zvCfgLcmGraph : public zvCoreObjectCfg {
public:
    explicit zvCfgLcmGraph(const zvString& objectType);
    zvCfgLcmGraph(const zvCfgLcmGraph&) = delete;
    zvCfgLcmGraph& operator=(const zvCfgLcmGraph&) = delete;
    ~zvCfgLcmGraph() override;

    zvString getObjectType() const { return m_strObjectType; }

    /// Takes ownership of the state, which is not null, and indexes it by its index, local name, key and, if
    /// set, remote name. An index or name that is taken stays that of the other state.
    /// @return false if one of them was taken or the local name is empty, which is logged.
    bool addState(zvCfgLcmState* state);
    /// Adds `remoteName` as an alias of the state, which becomes its remote name if it has none. False for an
    /// empty name, an unknown local name and a remote name that is taken.
    bool addRemoteName(const zvString& localName, const zvString& remoteName);

    /// The states are owned by the graph; null for an unknown name or an index out of range.
    ///
    /// All states in insertion order.
    int numStates() const { return m_states.size(); }
    const zvCfgLcmState* getStateAt(int i) const { return m_states.at(i); }
    const zvCfgLcmState* getStateByIndex(int index) const;
    const zvCfgLcmState* getStateByKey(const zvString& key) const;
    const zvCfgLcmState* getStateByLocalName(const zvString& name) const;
    const zvCfgLcmState* getStateByRemoteName(const zvString& name) const;
    /// The index of the state with this local name, or else with this remote name; -1 if there is none.
    int getStateIndex(const zvString& name) const;

    /// Calls `visit(remoteName, state)` for each name that getStateByRemoteName() knows, ordered by name.
    template <typename Visit>
    void forEachRemoteName(Visit visit) const {
        for (const auto& [name, place] : m_byRemoteName) {
            visit(name, static_cast<const zvCfgLcmState&>(*m_states.at(place)));
        }
    }

    /// Replaces the content of `paths` with the simple paths between two states, shortest first and otherwise
    /// in the order of the transitions. States are given by local or remote name.
    ///
    /// `selector` is the type of the transitions to use, "Promote" or "Demote"; empty for both. From a state
    /// to itself there is the empty path only. At most 1,000 paths are returned, and the search stops after a
    /// limited number of steps; both are logged as a warning.
    /// @return whether there is a path.
    bool getTransitionPaths(const zvString& fromState, const zvString& toState, const zvString& selector,
                            zvCfgTransitionPathList& paths) const;

private:
    using Index = std::map<zvString, int>;  // positions in m_states

    template <class Key>
    const zvCfgLcmState* stateIn(const std::map<Key, int>& index, const Key& key) const;
    int numberOf(const zvString& name) const;

    zvString m_strObjectType;
    zvCfgOwner<zvCfgLcmState> m_states;
    std::map<int, int> m_byIndex;
    Index m_byKey;
    Index m_byLocalName;
    Index m_byRemoteName;
};

#endif
