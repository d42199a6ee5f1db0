#ifndef ZV_CFG_VIEW_LIST_H
#define ZV_CFG_VIEW_LIST_H

#include <vector>

#include "zvCoreObject.h"

class zvCfgView;

/// A list of the configuration's views in insertion order. The pointers are borrowed.
class ZV_EXPORT zvCfgViewList : public zvCoreObjectCommon {
public:
    zvCfgViewList();
    zvCfgViewList(const zvCfgViewList& other);
    ~zvCfgViewList() override;

    zvCfgViewList& operator=(const zvCfgViewList& other);

    void add(zvCfgView* item);
    /// Null if `i` is out of range.
    zvCfgView* get(int i) const;
    int size() const;

private:
    std::vector<zvCfgView*> m_items;
};

#endif
