#ifndef ZV_CFG_TYPE_INDEX_H
#define ZV_CFG_TYPE_INDEX_H

#include <map>

#include "zvMapIndex.h"
#include "zvString.h"

/// An index from type names to lists.
template <class List>
class zvCfgTypeIndex {
public:
    /// The list of `type`, created empty on first use.
    List& at(const zvString& type) { return m_lists[type]; }
    /// Null for a type without a list.
    const List* find(const zvString& type) const { return zvMapFind(m_lists, type); }

private:
    std::map<zvString, List> m_lists;
};

#endif
