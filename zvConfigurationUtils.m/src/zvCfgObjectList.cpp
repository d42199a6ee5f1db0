#include "zvCfgObjectList.h"

#include "zvCfgOwner.h"

zvCfgObjectList::zvCfgObjectList() = default;

zvCfgObjectList::zvCfgObjectList(const zvCfgObjectList& other) = default;

zvCfgObjectList::~zvCfgObjectList() = default;

zvCfgObjectList& zvCfgObjectList::operator=(const zvCfgObjectList& other) = default;

void zvCfgObjectList::add(zvCfgObject* item) { m_items.push_back(item); }

zvCfgObject* zvCfgObjectList::get(int i) const { return zvCfgEntryAt(m_items, i); }

int zvCfgObjectList::size() const { return static_cast<int>(m_items.size()); }
