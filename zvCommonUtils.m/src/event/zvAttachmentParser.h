#ifndef ZV_ATTACHMENT_PARSER_H
#define ZV_ATTACHMENT_PARSER_H

#include "zvResult.h"
#include "zvXMLParser.h"

class zvAttachment;
class zvAttachmentList;

/// Reads an event's attachments file:
///
///     <AttachmentList>
///       <Attachment>
///         <FilePath>C:\x\a.txt</FilePath>
///         <FileTransferMode>ASCII</FileTransferMode>   BINARY unless it is exactly ASCII
///         <ToBeDeleted>FALSE</ToBeDeleted>             true unless it is FALSE in any case
///       </Attachment>
///     </AttachmentList>
///
/// A missing mode or ToBeDeleted takes its default, and an attachment without a path is skipped, each with a
/// warning. Other elements are ignored. A document with an external entity is refused.
class ZV_EXPORT zvAttachmentParser : public zvXMLParser {
public:
    zvAttachmentParser();
    /// Also reports what is wrong, each fault with its place, to `findings`, which may be null and must
    /// outlive the parser.
    explicit zvAttachmentParser(zvFindingSink* findings);
    ~zvAttachmentParser() override;

    /// Appends the attachments in `input`, a file's path or a document, to `list`.
    /// @return code 0; -1 for an empty `input`, a null `list` and a document without any attachment, all
    /// without a message.
    /// @throws zvException for a document that cannot be loaded or has a wrong root element.
    zvResult parse(zvAttachmentList* list, const zvString& input, bool isFile);

private:
    int parseAttachment(zvAttachmentList* list);
    void parseMembers(zvString& tag, zvAttachment& attachment);
    void readFileTransferMode(bool hasText, const zvString& text, zvAttachment& attachment) const;
    void readToBeDeleted(bool hasText, const zvString& text, zvAttachment& attachment) const;
    void report(zvFinding::Severity severity, std::string_view kind, const zvString& path,
                const char* text) const;
};

#endif
