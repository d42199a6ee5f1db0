#include "zvCfgFileConfig.h"

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
    zvString lowered = name;
    lowered.toLower();
    m_lowered.insert(lowered);
}

bool zvCfgExtensionList::has(zvString name) const {
    name.toLower();
    return m_lowered.count(name) != 0;
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
