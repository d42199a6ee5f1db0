#ifndef ZV_ATTACHMENT_LIST_H
#define ZV_ATTACHMENT_LIST_H

#include <memory>
#include <vector>

#include "zvAttachment.h"
#include "zvCoreObject.h"
#include "zvString.h"
#include "zvStringList.h"

/// An event's attachments in insertion order. The list owns them.
class ZV_EXPORT zvAttachmentList : public zvCoreObjectCommon {
public:
    zvAttachmentList();
    zvAttachmentList(const zvAttachmentList&) = delete;
    zvAttachmentList& operator=(const zvAttachmentList&) = delete;
    ~zvAttachmentList() override;

    /// Takes ownership; null is ignored.
    void addAttachment(zvAttachment* attachment);
    int numAttachments() const;
    /// Attachment `i`, owned by the list; null if `i` is out of range.
    zvAttachment* getAttachment(int i) const;
    bool empty() const;
    /// Deletes the attachments.
    void clear();

    /// Appends the attachments' paths to `files`.
    void getFileList(zvStringList& files) const;
    /// "Attachments[", each attachment's toString() on a new line, "]".
    zvString toString() const;

private:
    std::vector<std::unique_ptr<zvAttachment>> m_attachments;
};

#endif
