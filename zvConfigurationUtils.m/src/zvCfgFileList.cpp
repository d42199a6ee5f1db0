#include "zvCfgFileList.h"

#include <utility>

#include "zvCfgFile.h"

zvCfgFileList::zvCfgFileList() = default;

zvCfgFileList::zvCfgFileList(const zvCfgFileList& other) = default;

zvCfgFileList::~zvCfgFileList() = default;

zvCfgFileList& zvCfgFileList::operator=(const zvCfgFileList& other) = default;

void zvCfgFileList::addFile(zvCfgFile* item) { m_items.push_back(item); }

zvCfgFile* zvCfgFileList::getFile(int i) const { return zvCfgEntryAt(m_items, i); }

int zvCfgFileList::size() const { return static_cast<int>(m_items.size()); }

void zvCfgFileList::deleteAll() {
    zvCfgOwner<zvCfgFile> last;
    for (zvCfgFile*& item : m_items) {
        last.add(std::exchange(item, nullptr));
    }
}
