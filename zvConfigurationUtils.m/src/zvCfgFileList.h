#ifndef ZV_CFG_FILE_LIST_H
#define ZV_CFG_FILE_LIST_H

#include <vector>

#include "zvCoreObject.h"

class zvCfgFile;

/// A list of the configuration's files in insertion order. The pointers are borrowed, except for deleteAll().
class ZV_EXPORT zvCfgFileList : public zvCoreObjectCommon {
public:
    zvCfgFileList();
    zvCfgFileList(const zvCfgFileList& other);
    ~zvCfgFileList() override;

    zvCfgFileList& operator=(const zvCfgFileList& other);

    void addFile(zvCfgFile* item);
    /// Null if `i` is out of range.
    zvCfgFile* getFile(int i) const;
    int size() const;
    /// Deletes the files and leaves null entries. Precondition: no manager owns them.
    void deleteAll();

private:
    std::vector<zvCfgFile*> m_items;
};

#endif
