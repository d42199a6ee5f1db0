#ifndef ZV_CFG_LIFECYCLE_CONFIG_H
#define ZV_CFG_LIFECYCLE_CONFIG_H

#include <memory>

#include "zvCfgLcmGraph.h"

/// The store of the lifecycles, one for each object type. It owns them.
class zvCfgLifecycleConfig {
public:
    /// Takes the state, which is not null, into the object type's lifecycle, a new one if need be.
    bool addState(zvCfgLcmState* state, const zvString& objectType);

    /// Null for an object type without a lifecycle.
    zvCfgLcmGraph* find(const zvString& objectType) const;

    /// In the order of addition.
    int size() const { return m_graphs.size(); }
    const zvCfgLcmGraph* at(int i) const { return m_graphs.at(i); }

private:
    std::map<zvString, zvCfgLcmGraph*> m_byObjectType;
    zvCfgOwner<zvCfgLcmGraph> m_graphs;
};

#endif
