#include "zvAttachmentParser.h"

#include <memory>

#include "zvAttachment.h"
#include "zvAttachmentList.h"
#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvAttachmentParser");

constexpr const char* rootName = "AttachmentList";
constexpr const char* attachmentName = "Attachment";

constexpr char skipped[] = "an attachment without a FilePath is left out";

}  // namespace

zvAttachmentParser::zvAttachmentParser() : zvAttachmentParser(nullptr) {}
zvAttachmentParser::zvAttachmentParser(zvFindingSink* findings)
    : zvXMLParser(findings, zvXMLOptions::withoutExternalEntities()) {}
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
        report(zvFinding::Severity::error, zvFindingKind::wrongRoot, zvString(),
               "the root element is not \"AttachmentList\"");
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
        report(zvFinding::Severity::warning, zvFindingKind::missingPath, zvString(), skipped);
        return 0;
    }
    auto attachment = std::make_unique<zvAttachment>();
    parseMembers(tag, *attachment);
    getParent(tag);
    if (attachment->getFilePath().empty()) {
        logger.warn("FilePath not specified for attachment, skipping it");
        report(zvFinding::Severity::warning, zvFindingKind::missingPath, zvString(), skipped);
        return 0;
    }
    logger.debug(
        "Parsed attachment ", [&attachment] { return attachment->toString(); }, "]");
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

void zvAttachmentParser::readFileTransferMode(bool hasText, const zvString& text,
                                              zvAttachment& attachment) const {
    if (hasText) {
        attachment.setFileTransferMode(text);
        return;
    }
    logger.warn("FileTransferMode not specified for attachment, setting default to BINARY");
    report(zvFinding::Severity::warning, zvFindingKind::defaultUsed, attachment.getFilePath(),
           "FileTransferMode is missing: BINARY is used");
}

void zvAttachmentParser::readToBeDeleted(bool hasText, const zvString& text, zvAttachment& attachment) const {
    if (hasText) {
        attachment.setToBeDeleted(!text.equalsIgnoreCase("FALSE"));
        return;
    }
    logger.warn("ToBeDeleted not specified for attachment, setting default to TRUE");
    report(zvFinding::Severity::warning, zvFindingKind::defaultUsed, attachment.getFilePath(),
           "ToBeDeleted is missing: the file will be deleted");
}

// Of the element that the cursor stands on.
void zvAttachmentParser::report(zvFinding::Severity severity, std::string_view kind, const zvString& path,
                                const char* text) const {
    if (zvFindingSink* const findings = getFindingSink()) {
        const zvString part = path.empty() ? zvString() : "attachment \"" + path + "\"";
        findings->report({severity, kind, part, zvString(), getPosition(getCurrentNode()), text});
    }
}
