// Parses an attachments document from memory.
#include "zvAttachmentList.h"
#include "zvAttachmentParser.h"
#include "zvException.h"
#include "zvFuzzSupport.h"
#include "zvXMLParser.h"

using zvFuzz::require;

void zvFuzzOne(std::string_view input) {
    static const zvXMLParser platform;  // keeps the XML platform initialised, which takes longer than a parse
    zvAttachmentList list;
    const zvString document = zvFuzz::textOf(input);
    try {
        const zvResult result = zvAttachmentParser().parse(&list, document, false);
        require(result.isOk() || list.empty(), "only a document without attachments fails without a reason");
    } catch (const zvException& refusal) {
        require(!refusal.getResult().getMessage().empty(), "a refusal says why");
        require(list.empty(), "a refused document leaves the list as it was");
    }
    zvStringList files;
    list.getFileList(files);
    require(files.numStrings() == list.numAttachments(), "every attachment is a file");
    for (int i = 0; i < files.numStrings(); ++i) {
        require(!files.getString(i).empty(), "every attachment has a path");
    }
    require(list.toString().find("Attachments[") == 0, "a list says what is in it");
}
