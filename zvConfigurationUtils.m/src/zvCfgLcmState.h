#ifndef ZV_CFG_LCM_STATE_H
#define ZV_CFG_LCM_STATE_H

#include "zvCfgOwner.h"
#include "zvCfgTransition.h"
#include "zvFinding.h"

/// A lifecycle state, with its names in both systems and the transitions that lead out of it.
class ZV_EXPORT zvCfgLcmState : public zvCoreObjectCfg {
public:
    /// No names, index 0, no transitions.
    zvCfgLcmState();
    zvCfgLcmState(const zvCfgLcmState&) = delete;
    zvCfgLcmState& operator=(const zvCfgLcmState&) = delete;
    ~zvCfgLcmState() override;

    /// The state's place in its lifecycle.
    int getIndex() const { return m_index; }
    void setIndex(int index) { m_index = index; }
    /// The local name as long as no key was set.
    zvString getKey() const { return key(); }
    void setKey(zvString key) { m_strKey.swap(key); }
    zvString getLocalName() const { return m_strLocalName; }
    void setLocalName(zvString name) { m_strLocalName.swap(name); }
    zvString getRemoteName() const { return m_strRemoteName; }
    void setRemoteName(zvString name) { m_strRemoteName.swap(name); }

    /// The texts themselves, owned by the state.
    const zvString& key() const { return m_strKey.empty() ? m_strLocalName : m_strKey; }
    const zvString& localName() const { return m_strLocalName; }
    const zvString& remoteName() const { return m_strRemoteName; }

    /// Appends a copy.
    void addOutgoingTransition(const zvCfgTransition& transition);
    /// The transitions belong to the state and are in the order of addition.
    int numOutgoingTransitions() const;
    /// Null out of range.
    const zvCfgTransition* getOutgoingTransition(int i) const;

    /// Where the element begins in the file that it was read from; unknown when nobody wanted findings of it.
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
