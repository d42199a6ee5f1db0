#include "zvAttachment.h"

#include "zvTextBuilder.h"

namespace {

constexpr int binaryMode = 0;
constexpr int asciiMode = 1;
constexpr const char* binaryText = "BINARY";
constexpr const char* asciiText = "ASCII";

}  // namespace

zvAttachment::zvAttachment() : m_fileTransferMode(binaryMode), m_bToBeDeleted(true) {}
zvAttachment::zvAttachment(const zvAttachment&) = default;
zvAttachment& zvAttachment::operator=(const zvAttachment&) = default;
zvAttachment::~zvAttachment() = default;

void zvAttachment::setFilePath(const zvString& path) { m_strFilePath = path; }

zvString zvAttachment::getFilePath() const { return m_strFilePath; }

void zvAttachment::setFileTransferMode(int mode) { m_fileTransferMode = mode; }

void zvAttachment::setFileTransferMode(const zvString& mode) {
    m_fileTransferMode = getFileTransferModeInt(mode);
}

int zvAttachment::getFileTransferMode() const { return m_fileTransferMode; }

void zvAttachment::setToBeDeleted(bool toBeDeleted) { m_bToBeDeleted = toBeDeleted; }

bool zvAttachment::getToBeDeleted() const { return m_bToBeDeleted; }

zvString zvAttachment::toString() const {
    return zvTextBuilder::concat("Attachment[", "FilePath:", m_strFilePath,
                                 " FileType:", getFileTransferModeStr(m_fileTransferMode),
                                 " ToBeDeleted:", m_bToBeDeleted ? "TRUE" : "FALSE", "]");
}

int zvAttachment::getFileTransferModeInt(const zvString& mode) {
    return mode == asciiText ? asciiMode : binaryMode;
}

zvString zvAttachment::getFileTransferModeStr(int mode) { return mode == asciiMode ? asciiText : binaryText; }
