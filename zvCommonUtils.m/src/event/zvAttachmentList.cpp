#include "zvAttachmentList.h"

#include "zvTextBuilder.h"

zvAttachmentList::zvAttachmentList() = default;
zvAttachmentList::~zvAttachmentList() = default;

void zvAttachmentList::addAttachment(zvAttachment* attachment) {
    std::unique_ptr<zvAttachment> owned(attachment);
    if (owned != nullptr) {
        m_attachments.push_back(std::move(owned));
    }
}

int zvAttachmentList::numAttachments() const { return static_cast<int>(m_attachments.size()); }

zvAttachment* zvAttachmentList::getAttachment(int i) const {
    return i >= 0 && i < numAttachments() ? m_attachments[static_cast<std::size_t>(i)].get() : nullptr;
}

bool zvAttachmentList::empty() const { return m_attachments.empty(); }

void zvAttachmentList::clear() { m_attachments.clear(); }

void zvAttachmentList::getFileList(zvStringList& files) const {
    for (const auto& attachment : m_attachments) {
        files.addString(attachment->getFilePath());
    }
}

zvString zvAttachmentList::toString() const {
    zvTextBuilder text;
    text.append("Attachments[");
    for (const auto& attachment : m_attachments) {
        text.append("\n").append(attachment->toString());
    }
    return text.append("]").toString();
}
