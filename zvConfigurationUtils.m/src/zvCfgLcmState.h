#ifndef ZV_CFG_LCM_STATE_H
#define ZV_CFG_LCM_STATE_H

#include "zvCfgOwner.h"
#include "zvCfgTransition.h"
#include "zvFinding.h"

/// A lifecycle state, with its names in both systems and its outgoing transitions.
class ZV_EXPORT zvCfgLcmState : public zvCoreObjectCfg {
public:
    /// No names, index 0, no transitions.
    zvCfgLcmState();
    zvCfgLcmState(const zvCfgLcmState&) = delete;
    zvCfgLcmState& operator=(const zvCfgLcmState&) = delete;
    ~zvCfgLcmState() override;

    /// The state's position in its lifecycle.
    int getIndex() const { return m_index; }
    void setIndex(int index) { m_index = index; }
    /// The key; the local name if no key is set.
    zvString getKey() const { return key(); }
    void setKey(zvString key) { m_strKey.swap(key); }
    zvString getLocalName() const { return m_strLocalName; }
    void setLocalName(zvString name) { m_strLocalName.swap(name); }
    zvString getRemoteName() const { return m_strRemoteName; }
    void setRemoteName(zvString name) { m_strRemoteName.swap(name); }

    /// The strings by reference, owned by the state.
    const zvString& key() const { return m_strKey.empty() ? m_strLocalName : m_strKey; }
    const zvString& localName() const { return m_strLocalName; }
    const zvString& remoteName() const { return m_strRemoteName; }

    /// Appends a copy.
    void addOutgoingTransition(const zvCfgTransition& transition);
    /// The transitions in insertion order, owned by the state.
    int numOutgoingTransitions() const;
    /// Null if `i` is out of range.
    const zvCfgTransition* getOutgoingTransition(int i) const;

    /// Where the element begins in the file that it was read from; unknown without a sink for
    /// findings.
    zvTextPosition getPosition() const { return m_position; }
    void setPosition(zvTextPosition position) { m_position = position; }

private:
    int m_index = 0;
    zvString m_strKey;
    zvString m_strLocalName;
    zvString m_strRemoteName;
    zvCfgOwner<zvCfgTransition> m_transitions;
    zvTextPosition m_position;
};

#endif
