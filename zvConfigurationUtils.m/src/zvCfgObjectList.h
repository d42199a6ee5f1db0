#ifndef ZV_CFG_OBJECT_LIST_H
#define ZV_CFG_OBJECT_LIST_H

#include <vector>

#include "zvCoreObject.h"

class zvCfgObject;

/// Some of the configuration's objects in the order of their addition. The list does not own them.
class ZV_EXPORT zvCfgObjectList : public zvCoreObjectCommon {
public:
    zvCfgObjectList();
    zvCfgObjectList(const zvCfgObjectList& other);
    ~zvCfgObjectList() override;

    zvCfgObjectList& operator=(const zvCfgObjectList& other);

    void add(zvCfgObject* item);
    /// Null out of range.
    zvCfgObject* get(int i) const;
    int size() const;

private:
    std::vector<zvCfgObject*> m_items;
};

#endif
