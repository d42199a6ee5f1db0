#ifndef ZV_CFG_FILE_LIST_H
#define ZV_CFG_FILE_LIST_H

#include <vector>

#include "zvCoreObject.h"

class zvCfgFile;

/// Some of the configuration's files in the order of their addition. The list does not own
/// them: only deleteAll() deletes them.
class ZV_EXPORT zvCfgFileList : public zvCoreObjectCommon {
public:
    zvCfgFileList();
    zvCfgFileList(const zvCfgFileList& other);
    ~zvCfgFileList() override;

    zvCfgFileList& operator=(const zvCfgFileList& other);

    void addFile(zvCfgFile* item);
    /// Null out of range.
    zvCfgFile* getFile(int i) const;
    int size() const;
    /// Deletes every file in the list and leaves null in its place. Not for files that a manager owns.
    void deleteAll();

private:
    std::vector<zvCfgFile*> m_items;
};

#endif
