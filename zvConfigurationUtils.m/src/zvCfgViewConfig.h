#ifndef ZV_CFG_VIEW_CONFIG_H
#define ZV_CFG_VIEW_CONFIG_H

#include <map>
#include <vector>

#include "zvCfgOwner.h"
#include "zvCfgView.h"
#include "zvCfgViewList.h"

/// Owns the views and indexes them by name and collection.
class zvCfgViewConfig {
public:
    /// Takes ownership of the view, which is not null. A name that is empty or taken is logged.
    /// @return whether the view was indexed by both names and in its collection.
    bool add(zvCfgView* view);

    /// The collections in the order of their first view; an empty name if `i` is out of range.
    int numCollections() const { return static_cast<int>(m_collectionNames.size()); }
    zvString collectionAt(int i) const;
    /// Null for an unknown name.
    const zvCfgViewList* viewsIn(const zvString& collection) const;
    const zvCfgView* defaultViewIn(const zvString& collection) const;
    const zvCfgView* byLocalName(const zvString& name) const;
    const zvCfgView* byRemoteName(const zvString& name) const;

private:
    struct Collection {
        zvCfgViewList views;
        const zvCfgView* first = nullptr;  // the one with the lowest index
    };
    using Index = std::map<zvString, const zvCfgView*>;

    bool addToCollection(zvCfgView* view);

    Index m_byLocalName;
    Index m_byRemoteName;
    std::map<zvString, Collection> m_collections;
    std::vector<const zvString*> m_collectionNames;  // the map's keys, in their order
    zvCfgOwner<zvCfgView> m_views;
};

#endif
