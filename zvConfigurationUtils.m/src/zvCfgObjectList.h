#ifndef ZV_CFG_OBJECT_LIST_H
#define ZV_CFG_OBJECT_LIST_H

#include <vector>

#include "zvCoreObject.h"

class zvCfgObject;

/// A list of the configuration's objects in insertion order. The pointers are borrowed.
class ZV_EXPORT zvCfgObjectList : public zvCoreObjectCommon {
public:
    zvCfgObjectList();
    zvCfgObjectList(const zvCfgObjectList& other);
    ~zvCfgObjectList() override;

    zvCfgObjectList& operator=(const zvCfgObjectList& other);

    void add(zvCfgObject* item);
    /// Null if `i` is out of range.
    zvCfgObject* get(int i) const;
    int size() const;

private:
    std::vector<zvCfgObject*> m_items;
};

#endif
