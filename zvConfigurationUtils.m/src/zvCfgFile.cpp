#include "zvCfgFile.h"

#include "zvMapIndex.h"

zvCfgFile::zvCfgFile() = default;

zvCfgFile::~zvCfgFile() = default;

bool zvCfgFile::addFileExtension(zvCfgFileExtension* extension) {
    if (extension == nullptr) {
        return false;
    }
    m_extensions.add(extension);
    const zvString name = extension->getName();
    return !name.empty() && m_byName.try_emplace(name, extension).second;
}

int zvCfgFile::numAllowedFileExtensions() const { return static_cast<int>(m_byName.size()); }

const zvCfgFileExtension* zvCfgFile::getFileExtension(int i) const {
    const auto* const entry = zvMapEntryAt(m_byName, i);
    return entry == nullptr ? nullptr : entry->second;
}

zvString zvCfgFile::getAllowedFileExtensionAt(int i) const {
    const auto* const entry = zvMapEntryAt(m_byName, i);
    return entry == nullptr ? zvString() : entry->first;
}

const zvCfgFileExtension* zvCfgFile::getFileExtension(const zvString& name) const {
    const auto found = m_byName.find(name);
    return found == m_byName.end() ? nullptr : found->second;
}
