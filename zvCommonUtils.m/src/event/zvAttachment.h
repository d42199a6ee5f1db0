#ifndef ZV_ATTACHMENT_H
#define ZV_ATTACHMENT_H

#include "zvCoreObject.h"
#include "zvString.h"

/// A file that accompanies an event.
///
/// Its transfer mode is a number of its own, 0 for BINARY and 1 for ASCII: zvTransferModeEnum counts the
/// other way round.
class ZV_EXPORT zvAttachment : public zvCoreObjectCommon {
public:
    /// No path, BINARY, to be deleted.
    zvAttachment();
    zvAttachment(const zvAttachment& other);
    zvAttachment& operator=(const zvAttachment& other);
    ~zvAttachment() override;

    void setFilePath(const zvString& path);
    zvString getFilePath() const;

    void setFileTransferMode(int mode);
    /// As getFileTransferModeInt reads the text.
    void setFileTransferMode(const zvString& mode);
    int getFileTransferMode() const;

    /// Whether the file is deleted once it is transferred.
    void setToBeDeleted(bool toBeDeleted);
    bool getToBeDeleted() const;

    /// As in "Attachment[FilePath:C:\x\a.txt FileType:BINARY ToBeDeleted:TRUE]".
    zvString toString() const;

    /// 1 for "ASCII" exactly, 0 for any other text.
    static int getFileTransferModeInt(const zvString& mode);
    /// "ASCII" for 1, "BINARY" for any other number.
    static zvString getFileTransferModeStr(int mode);

private:
    zvString m_strFilePath;
    int m_fileTransferMode;
    bool m_bToBeDeleted;
};

#endif
