#include "zvCfgViewList.h"

#include "zvCfgOwner.h"

zvCfgViewList::zvCfgViewList() = default;

zvCfgViewList::zvCfgViewList(const zvCfgViewList& other) = default;

zvCfgViewList::~zvCfgViewList() = default;

zvCfgViewList& zvCfgViewList::operator=(const zvCfgViewList& other) = default;

void zvCfgViewList::add(zvCfgView* item) { m_items.push_back(item); }

zvCfgView* zvCfgViewList::get(int i) const { return zvCfgEntryAt(m_items, i); }

int zvCfgViewList::size() const { return static_cast<int>(m_items.size()); }
