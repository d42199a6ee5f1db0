#ifndef ZV_CFG_LIFECYCLE_CONFIG_H
#define ZV_CFG_LIFECYCLE_CONFIG_H

#include <memory>

#include "zvCfgLcmGraph.h"

/// Owns the lifecycles, one per object type.
class zvCfgLifecycleConfig {
public:
    /// Adds the state, which is not null, to the object type's lifecycle, which is created on demand.
    bool addState(zvCfgLcmState* state, const zvString& objectType);

    /// Null for an object type without a lifecycle.
    zvCfgLcmGraph* find(const zvString& objectType) const;

    /// In insertion order.
    int size() const { return m_graphs.size(); }
    const zvCfgLcmGraph* at(int i) const { return m_graphs.at(i); }

private:
    std::map<zvString, zvCfgLcmGraph*> m_byObjectType;
    zvCfgOwner<zvCfgLcmGraph> m_graphs;
};

#endif
