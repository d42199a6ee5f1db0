#ifndef ZV_CFG_VIEW_H
#define ZV_CFG_VIEW_H

#include "zvCoreObject.h"
#include "zvString.h"

/// A view, with its names in both systems, and its collection.
class ZV_EXPORT zvCfgView : public zvCoreObjectCfg {
public:
    /// No names, index 0.
    zvCfgView();
    zvCfgView(const zvCfgView& other);
    ~zvCfgView() override;

    zvCfgView& operator=(const zvCfgView& other);

    /// The name of the view's collection.
    zvString getNetworkName() const { return m_strNetworkName; }
    void setNetworkName(zvString name) { m_strNetworkName.swap(name); }
    /// The view with the lowest index is the default of its collection.
    int getIndex() const { return m_index; }
    void setIndex(int index) { m_index = index; }
    zvString getLocalName() const { return m_strLocalName; }
    void setLocalName(zvString name) { m_strLocalName.swap(name); }
    zvString getRemoteName() const { return m_strRemoteName; }
    void setRemoteName(zvString name) { m_strRemoteName.swap(name); }

private:
    zvString m_strNetworkName;
    int m_index = 0;
    zvString m_strLocalName;
    zvString m_strRemoteName;
};

#endif
