#include "zvAttachmentParser.h"

#include <memory>

#include "zvAttachment.h"
#include "zvAttachmentList.h"
#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvAttachmentParser");

constexpr const char* rootName = "AttachmentList";
constexpr const char* attachmentName = "Attachment";

void readFileTransferMode(bool hasText, const zvString& text, zvAttachment& attachment) {
    if (hasText) {
        attachment.setFileTransferMode(text);
    } else {
        logger.warn("FileTransferMode not specified for attachment, setting default to BINARY");
    }
}

void readToBeDeleted(bool hasText, const zvString& text, zvAttachment& attachment) {
    if (hasText) {
        attachment.setToBeDeleted(!text.equalsIgnoreCase("FALSE"));
    } else {
        logger.warn("ToBeDeleted not specified for attachment, setting default to TRUE");
    }
}

}  // namespace

zvAttachmentParser::zvAttachmentParser() = default;
zvAttachmentParser::~zvAttachmentParser() = default;

zvResult zvAttachmentParser::parse(zvAttachmentList* list, const zvString& input, bool isFile) {
    zvResult result;
    logger.debug("Started parsing attachments file");
    if (input.empty() || list == nullptr) {
        return result;
    }
    if (!loadXMLFromString(input, isFile)) {
        logger.raise("Error in opening attachments file [", input, "]");
    }
    logger.debug("File path ", input);
    zvString tag;
    if (!getRoot(tag) || tag != rootName) {
        logger.raise("Root Node [", rootName, "] could note be found in attachments file [", input, "]");
    }
    if (getFirstChild(tag)) {
        do {
            if (tag == attachmentName) {
                result = parseAttachment(list);
            }
        } while (getNextSibling(tag));
        getParent(tag);
    }
    return result;
}

int zvAttachmentParser::parseAttachment(zvAttachmentList* list) {
    if (list == nullptr) {
        return -1;
    }
    logger.debug("Parsing attachment element");
    zvString tag;
    if (!getTag(tag) || tag != attachmentName) {
        return 0;
    }
    if (!getFirstChild(tag)) {
        logger.debug("Attachment element does not have any child elements. Skipping this element.");
        return 0;
    }
    auto attachment = std::make_unique<zvAttachment>();
    parseMembers(tag, *attachment);
    getParent(tag);
    if (attachment->getFilePath().empty()) {
        logger.warn("FilePath not specified for attachment, skipping it");
        return 0;
    }
    logger.debug("Parsed attachment ", attachment->toString(), "]");
    list->addAttachment(attachment.release());
    return 0;
}

// The cursor stands on the first of an attachment's children, `tag` being its name.
void zvAttachmentParser::parseMembers(zvString& tag, zvAttachment& attachment) {
    bool hasMode = false;
    bool hasToBeDeleted = false;
    do {
        zvString text;
        const bool hasText = getMemberValue(text);
        if (tag == "FilePath") {
            logger.debug("FilePath [", text, "]");
            attachment.setFilePath(text);
        } else if (tag == "FileTransferMode") {
            readFileTransferMode(hasText, text, attachment);
            hasMode = true;
        } else if (tag == "ToBeDeleted") {
            readToBeDeleted(hasText, text, attachment);
            hasToBeDeleted = true;
        }
    } while (getNextSibling(tag));
    // What is not there at all takes its default as what is empty does; a skipped attachment needs none.
    if (!hasMode && !attachment.getFilePath().empty()) {
        readFileTransferMode(false, zvString(), attachment);
    }
    if (!hasToBeDeleted && !attachment.getFilePath().empty()) {
        readToBeDeleted(false, zvString(), attachment);
    }
}
