#ifndef ZV_CFG_TRANSITION_H
#define ZV_CFG_TRANSITION_H

#include "zvCoreObject.h"
#include "zvString.h"

/// The type of a transition; "Promote" and "Demote" in the configuration file.
enum zvCfgTransitionTypeEnum { zvCfgTransitionPromote = 0, zvCfgTransitionDemote = 1 };

/// A transition out of a lifecycle state.
class ZV_EXPORT zvCfgTransition : public zvCoreObjectCfg {
public:
    zvCfgTransition(zvCfgTransitionTypeEnum type, const zvString& toState);
    zvCfgTransition(const zvCfgTransition& other);
    ~zvCfgTransition() override;

    zvCfgTransition& operator=(const zvCfgTransition& other);

    zvCfgTransitionTypeEnum getType() const { return m_type; }
    /// The local name of the target state.
    zvString getToState() const { return m_strToState; }
    /// The name by reference, owned by the transition.
    const zvString& toState() const { return m_strToState; }

    /// "Promote" or "Demote".
    static zvString typeName(zvCfgTransitionTypeEnum type);
    /// Sets `type` to the type of that name; false, with `type` unchanged, for any other string.
    static bool typeOf(const zvString& name, zvCfgTransitionTypeEnum& type);

private:
    zvCfgTransitionTypeEnum m_type;
    zvString m_strToState;
};

#endif
