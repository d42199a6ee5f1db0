#ifndef ZV_CFG_FILE_H
#define ZV_CFG_FILE_H

#include "zvCfgFileExtension.h"

/// A mapped file type: an object with allowed file extensions for import and export.
class ZV_EXPORT zvCfgFile : public zvCfgObject {
public:
    zvCfgFile();
    ~zvCfgFile() override;

    /// Takes ownership of the extension, even if it is refused. False for null, for an empty and for a
    /// duplicate name.
    bool addFileExtension(zvCfgFileExtension* extension);

    /// The extensions, owned by the file and ordered by name. Access by index is linear.
    int numAllowedFileExtensions() const;
    /// Null if `i` is out of range.
    const zvCfgFileExtension* getFileExtension(int i) const;
    /// Empty if `i` is out of range.
    zvString getAllowedFileExtensionAt(int i) const;
    /// The extension with this name, exact match; null if there is none.
    const zvCfgFileExtension* getFileExtension(const zvString& name) const;
    /// Calls `visit(extension)` for each extension, in linear time.
    template <typename Visit>
    void forEachFileExtension(Visit visit) const {
        for (const auto& entry : m_byName) {
            visit(static_cast<const zvCfgFileExtension&>(*entry.second));
        }
    }

private:
    std::map<zvString, zvCfgFileExtension*> m_byName;
    zvCfgOwner<zvCfgFileExtension> m_extensions;
};

#endif
