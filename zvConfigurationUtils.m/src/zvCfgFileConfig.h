#ifndef ZV_CFG_FILE_CONFIG_H
#define ZV_CFG_FILE_CONFIG_H

#include <set>

#include "zvCfgFile.h"
#include "zvCfgFileList.h"
#include "zvCfgTypeIndex.h"
#include "zvStringList.h"

/// A list of file extensions in insertion order, with case-insensitive lookup.
class ZV_EXPORT zvCfgExtensionList {
public:
    void add(const zvString& name);
    bool has(zvString name) const;
    const zvStringList& names() const { return m_names; }

private:
    zvStringList m_names;
    std::set<zvString> m_lowered;
};

/// The index of the mapped file types, which zvCfgObjectConfig owns.
class ZV_EXPORT zvCfgFileConfig {
public:
    /// Precondition: the file is not null and is not modified any more.
    void add(zvCfgFile* file);

    /// Null for an unknown type.
    const zvCfgFileList* byOotbType(const zvString& type) const { return m_byOotbType.find(type); }
    const zvCfgFileList* byLocalType(const zvString& type) const { return m_byLocalType.find(type); }
    const zvCfgFileList* byRemoteType(const zvString& type) const { return m_byRemoteType.find(type); }

    const zvCfgExtensionList& importable() const { return m_importable; }
    const zvCfgExtensionList& exportable() const { return m_exportable; }

    /// In insertion order.
    const zvCfgFileList& files() const { return m_files; }

private:
    zvCfgTypeIndex<zvCfgFileList> m_byOotbType;
    zvCfgTypeIndex<zvCfgFileList> m_byLocalType;
    zvCfgTypeIndex<zvCfgFileList> m_byRemoteType;
    zvCfgExtensionList m_importable;
    zvCfgExtensionList m_exportable;
    zvCfgFileList m_files;
};

#endif
