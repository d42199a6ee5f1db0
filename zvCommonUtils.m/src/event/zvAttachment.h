#ifndef ZV_ATTACHMENT_H
#define ZV_ATTACHMENT_H

#include "zvCoreObject.h"
#include "zvString.h"

/// A file that accompanies an event.
///
/// Its transfer mode is 0 for BINARY and 1 for ASCII: the opposite of zvTransferModeEnum.
class ZV_EXPORT zvAttachment : public zvCoreObjectCommon {
public:
    /// No path, binary transfer, to be deleted.
    zvAttachment();
    zvAttachment(const zvAttachment& other);
    zvAttachment& operator=(const zvAttachment& other);
    ~zvAttachment() override;

    void setFilePath(const zvString& path);
    zvString getFilePath() const;

    void setFileTransferMode(int mode);
    /// Converts `mode` with getFileTransferModeInt().
    void setFileTransferMode(const zvString& mode);
    int getFileTransferMode() const;

    /// Whether the local file is deleted after the transfer.
    void setToBeDeleted(bool toBeDeleted);
    bool getToBeDeleted() const;

    /// For example "Attachment[FilePath:C:\x\a.txt FileType:BINARY ToBeDeleted:TRUE]".
    zvString toString() const;

    /// 1 for "ASCII", case-sensitively; 0 for anything else.
    static int getFileTransferModeInt(const zvString& mode);
    /// "ASCII" for 1, "BINARY" for any other number.
    static zvString getFileTransferModeStr(int mode);

private:
    zvString m_strFilePath;
    int m_fileTransferMode;
    bool m_bToBeDeleted;
};

#endif
