#include "zvAttachment.h"
#include "zvAttachmentList.h"
#include "zvAttachmentParser.h"
#include "zvCheck.h"
#include "zvEventArguments.h"
#include "zvEventNameEnum.h"
#include "zvException.h"

namespace {

void arguments(const zvString& folder) {
    zvEventArguments event(zvEventMirror, "user"), copy(event);
    ZV_CHECK(event.addEventArgument("n", 5) && !event.addEventArgument("n", 6) &&
             event.addEventArgument('c', 'd'));
    event.setEventArgument("n", 2.5);
    event.setEventArgument("yes", true);
    ZV_CHECK(event.getEventArgumentValue("n") == 2.5 && event.getEventArgumentNameAt(0) == "EventName");
    ZV_CHECK(event.getEventArgumentValueAt(0) == "mirror" && event.numEventArguments() == 5);
    copy = event;
    char program[] = "program", argument[] = "A=1";
    char* words[] = {program, argument};
    zvEventArguments* const parsed = zvEventArguments::parseEventArguments(2, words);
    zvEventArguments* const line = zvEventArguments::parseEventArguments("\"A=1\" \"B=2\"");
    ZV_CHECK(parsed->getEventArgumentValue('A') == 1 && line->getEventArgumentValue('B') == 2);
    ZV_CHECK(zvEventArguments::getStringForEventNameEnum(zvEventMirrorFromLK) == "mirrorFromLK");
    ZV_CHECK(zvEventArguments::populateEventArguments(folder, *parsed) == 0);
    line->setEventArgument("RootShadowDir", "C:\\s");
    line->setEventArgument("EventShadowDir", "C:\\s\\13");
    ZV_CHECK(zvEventArguments::populateEventArguments(*line, *parsed).isOk());
    ZV_CHECK(parsed->getEventArgumentValue("EventShadowDir") == 13);
    parsed->destroy();
    line->destroy();
}

void attachments() {
    zvAttachment attachment, copy(attachment);
    attachment.setFilePath("C:\\a.txt");
    attachment.setFileTransferMode("ASCII");
    ZV_CHECK(attachment.getFileTransferMode() == 1 && attachment.getToBeDeleted());
    attachment.setFileTransferMode(0);
    attachment.setToBeDeleted(false);
    copy = attachment;
    ZV_CHECK(copy.toString() == "Attachment[FilePath:C:\\a.txt FileType:BINARY ToBeDeleted:FALSE]");
    ZV_CHECK(zvAttachment::getFileTransferModeInt("ascii") == 0 &&
             zvAttachment::getFileTransferModeStr(1) == "ASCII");
    zvAttachmentList list;
    zvAttachmentParser parser;
    ZV_CHECK(parser.parse(&list,
                          "<AttachmentList><Attachment><FilePath>5</FilePath></Attachment></AttachmentList>",
                          false) == 0);
    zvStringList paths;
    list.getFileList(paths);
    ZV_CHECK(paths.back() == 5 && !list.empty() && list.toString().find("Attachments[") == 0);
    list.clear();
    ZV_CHECK(list.empty() && parser.parse(nullptr, "", false) == -1);
    try {
        parser.parse(&list, "<Attachments/>", false);
        ZV_CHECK(false);
    } catch (const zvException& exception) {
        ZV_CHECK(exception.getResult() != 0);
    }
}

}  // namespace

int main() {
    arguments(".");
    attachments();
    return failures;
}
