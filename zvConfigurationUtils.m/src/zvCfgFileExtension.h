#ifndef ZV_CFG_FILE_EXTENSION_H
#define ZV_CFG_FILE_EXTENSION_H

#include "zvCfgObject.h"
#include "zvTransferModeEnum.h"

/// A file extension that a mapped file type allows. Nothing of the base class is used.
class ZV_EXPORT zvCfgFileExtension : public zvCfgObject {
public:
    /// No name, not allowed for import or export, binary transfer.
    zvCfgFileExtension();
    ~zvCfgFileExtension() override;

    zvString getName() const { return m_strName; }
    void setName(zvString name) { m_strName.swap(name); }
    bool isImportAllowed() const { return m_bImportAllowed; }
    void setImportAllowed(bool allowed) { m_bImportAllowed = allowed; }
    bool isExportAllowed() const { return m_bExportAllowed; }
    void setExportAllowed(bool allowed) { m_bExportAllowed = allowed; }
    zvTransferModeEnum getTransferMode() const { return m_transferMode; }
    void setTransferMode(zvTransferModeEnum mode) { m_transferMode = mode; }

private:
    zvString m_strName;
    bool m_bImportAllowed = false;
    bool m_bExportAllowed = false;
    zvTransferModeEnum m_transferMode = zvTransferModeBinary;
};

#endif
