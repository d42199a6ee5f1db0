#ifndef ZV_LIFECYCLE_WAY_H
#define ZV_LIFECYCLE_WAY_H

#include <string>
#include <vector>

#include "zvCfgLcmState.h"
#include "zvCfgObject.h"
#include "zvCfgTransitionPathList.h"

/// The shortest way between two states of a lifecycle.
class zvLifecycleWay {
public:
    /// Looks for it in the lifecycles of these object types, one after the other. States are given by local
    /// or remote name.
    zvLifecycleWay(const std::vector<zvString>& types, const zvString& from, const zvString& to);

    /// Looks for it in the object's lifecycle.
    zvLifecycleWay(const zvCfgObject& object, const zvString& from, const zvString& to)
        : zvLifecycleWay({object.getLocalCustomType(), object.getOotbTypeStr()}, from, to) {}

    bool exists() const { return m_paths.size() > 0; }
    /// Only of a way that exists.
    const zvCfgTransitionPath& path() const { return *m_paths.get(0); }
    /// The type whose lifecycle has it.
    const zvString& type() const { return m_strType; }

    /// The state for people, with its remote name, as in "INWORK (In Work)".
    static std::string namesOf(const zvCfgLcmState& state);

private:
    zvCfgTransitionPathList m_paths;
    zvString m_strType;
};

#endif
