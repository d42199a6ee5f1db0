#ifndef ZV_CFG_TRANSITION_PATH_LIST_H
#define ZV_CFG_TRANSITION_PATH_LIST_H

#include "zvCfgTransitionPath.h"

/// The paths from one lifecycle state to another.
class ZV_EXPORT zvCfgTransitionPathList : public zvCoreObjectCfg {
public:
    zvCfgTransitionPathList();
    zvCfgTransitionPathList(const zvCfgTransitionPathList& other);
    ~zvCfgTransitionPathList() override;

    zvCfgTransitionPathList& operator=(const zvCfgTransitionPathList& other);

    void add(zvCfgTransitionPath path);
    void clear();

    int size() const;
    /// Path `i`, owned by the list and valid until it changes; null if `i` is out of range.
    const zvCfgTransitionPath* get(int i) const;

private:
    std::vector<zvCfgTransitionPath> m_paths;
};

#endif
