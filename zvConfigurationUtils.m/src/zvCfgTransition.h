#ifndef ZV_CFG_TRANSITION_H
#define ZV_CFG_TRANSITION_H

#include "zvCoreObject.h"
#include "zvString.h"

/// The direction of a transition. The configuration file names these "Promote" and "Demote".
enum zvCfgTransitionTypeEnum { zvCfgTransitionPromote = 0, zvCfgTransitionDemote = 1 };

/// A way out of a lifecycle state.
class ZV_EXPORT zvCfgTransition : public zvCoreObjectCfg {
public:
    zvCfgTransition(zvCfgTransitionTypeEnum type, const zvString& toState);
    zvCfgTransition(const zvCfgTransition& other);
    ~zvCfgTransition() override;

    zvCfgTransition& operator=(const zvCfgTransition& other);

    zvCfgTransitionTypeEnum getType() const { return m_type; }
    /// The local name of the state that it leads to.
    zvString getToState() const { return m_strToState; }
    /// The name itself, owned by the transition.
    const zvString& toState() const { return m_strToState; }

    /// "Promote" or "Demote".
    static zvString typeName(zvCfgTransitionTypeEnum type);
    /// Sets `type` to what `name` names; false, with nothing changed, for any other text.
    static bool typeOf(const zvString& name, zvCfgTransitionTypeEnum& type);

private:
    zvCfgTransitionTypeEnum m_type;
    zvString m_strToState;
};

#endif
