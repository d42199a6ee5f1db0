#ifndef ZV_CFG_TYPE_INDEX_H
#define ZV_CFG_TYPE_INDEX_H

#include <map>

#include "zvMapIndex.h"
#include "zvString.h"

/// A list for each type name.
template <class List>
class zvCfgTypeIndex {
public:
    /// The list under `type`, empty at first.
    List& at(const zvString& type) { return m_lists[type]; }
    /// Null for a type without a list.
    const List* find(const zvString& type) const { return zvMapFind(m_lists, type); }

private:
    std::map<zvString, List> m_lists;
};

#endif
