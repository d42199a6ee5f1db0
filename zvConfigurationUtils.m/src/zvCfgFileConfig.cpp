#include "zvCfgFileConfig.h"

#include <algorithm>

#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgFileConfig");

void addTo(zvCfgTypeIndex<zvCfgFileList>& index, const zvString& type, zvCfgFile* file) {
    if (!type.empty()) {
        index.at(type).addFile(file);
    }
}

}  // namespace

void zvCfgExtensionList::add(const zvString& name) {
    m_names.addString(name);
    m_distinct.insert(name);
}

// Not by the names in lower case: what that is may have changed with the locale since they were added.
bool zvCfgExtensionList::has(const zvString& name) const {
    return m_distinct.count(name) != 0 ||
           std::any_of(m_distinct.begin(), m_distinct.end(),
                       [&name](const zvString& known) { return known.equalsIgnoreCase(name); });
}

void zvCfgFileConfig::add(zvCfgFile* file) {
    m_files.addFile(file);
    addTo(m_byOotbType, file->getOotbTypeStr(), file);
    addTo(m_byLocalType, file->getLocalCustomType(), file);
    addTo(m_byRemoteType, file->getRemoteCustomType(), file);
    file->forEachFileExtension([this](const zvCfgFileExtension& extension) {
        const zvString name = extension.getName();
        if (name.empty()) {
            logger.error("Empty file extension found in config file.");
            return;
        }
        if (extension.isImportAllowed()) {
            m_importable.add(name);
        }
        if (extension.isExportAllowed()) {
            m_exportable.add(name);
        }
    });
}
