#ifndef ZV_CFG_LCM_GRAPH_H
#define ZV_CFG_LCM_GRAPH_H

#include <map>

#include "zvCfgLcmState.h"
#include "zvCfgTransitionPathList.h"

/// The lifecycle of one object type: its states and the transitions between them.
class ZV_EXPORT zvCfgLcmGraph : public zvCoreObjectCfg {
public:
    explicit zvCfgLcmGraph(const zvString& objectType);
    zvCfgLcmGraph(const zvCfgLcmGraph&) = delete;
    zvCfgLcmGraph& operator=(const zvCfgLcmGraph&) = delete;
    ~zvCfgLcmGraph() override;

    zvString getObjectType() const { return m_strObjectType; }

    /// Takes the state, which is not null, and finds it by its index, local name, key and, if it has one,
    /// remote name from now on. What another state has already stays the other's.
    /// @return false when one of them was taken or the local name is empty, which is logged.
    bool addState(zvCfgLcmState* state);
    /// Finds the state by `remoteName` as well, which becomes its remote name if it has none. False for an
    /// empty name, an unknown local name and a remote name that is taken.
    bool addRemoteName(const zvString& localName, const zvString& remoteName);

    /// The states belong to the graph. Null for what it does not hold.
    ///
    /// Every state that was added, in the order of addition.
    int numStates() const { return m_states.size(); }
    const zvCfgLcmState* getStateAt(int i) const { return m_states.at(i); }
    const zvCfgLcmState* getStateByIndex(int index) const;
    const zvCfgLcmState* getStateByKey(const zvString& key) const;
    const zvCfgLcmState* getStateByLocalName(const zvString& name) const;
    const zvCfgLcmState* getStateByRemoteName(const zvString& name) const;
    /// The index of the state with this local or else remote name; -1 without one.
    int getStateIndex(const zvString& name) const;

    /// Replaces the content of `paths` by the ways, shortest first and otherwise in the order of the
    /// transitions, on which no state comes twice. States are named by their local or remote names.
    ///
    /// `selector` is the type of the transitions to use, "Promote" or "Demote"; empty for both. A state is
    /// reached from itself by the empty path. Ways behind the thousandth, and those that take too many steps
    /// to find, are left out with a warning.
    /// @return whether there is a way.
    bool getTransitionPaths(const zvString& fromState, const zvString& toState, const zvString& selector,
                            zvCfgTransitionPathList& paths) const;

private:
    using Index = std::map<zvString, int>;  // the states' numbers in m_states

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
