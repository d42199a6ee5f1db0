#ifndef ZV_CFG_FILE_H
#define ZV_CFG_FILE_H

#include "zvCfgFileExtension.h"

/// A mapped file type: an object with the file extensions that may be imported and exported.
class ZV_EXPORT zvCfgFile : public zvCfgObject {
public:
    zvCfgFile();
    ~zvCfgFile() override;

    /// Takes the extension, also when it refuses it. False for null, for an empty name and for a name that
    /// another extension has already.
    bool addFileExtension(zvCfgFileExtension* extension);

    /// The extensions belong to the file and are in the order of their names, in which reaching number `i`
    /// takes `i` steps.
    int numAllowedFileExtensions() const;
    /// Null out of range.
    const zvCfgFileExtension* getFileExtension(int i) const;
    /// Empty out of range.
    zvString getAllowedFileExtensionAt(int i) const;
    /// By its exact name; null for any other.
    const zvCfgFileExtension* getFileExtension(const zvString& name) const;
    /// Calls `visit(extension)` for each of them, in one walk.
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
