#include <gtest/gtest.h>

#include "zvAttachmentList.h"
#include "zvAttachmentParser.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

namespace {

using Lines = std::vector<std::string>;

constexpr const char* noMode = "FileTransferMode not specified for attachment, setting default to BINARY";
constexpr const char* noToBeDeleted = "ToBeDeleted not specified for attachment, setting default to TRUE";
constexpr const char* noPath = "FilePath not specified for attachment, skipping it";

std::string listOf(const std::string& attachments) {
    return "<AttachmentList>" + attachments + "</AttachmentList>";
}

TEST(zvAttachmentTest, HasDefaultsAndCopiesAllMembers) {
    zvAttachment attachment;
    EXPECT_EQ("Attachment[FilePath: FileType:BINARY ToBeDeleted:TRUE]", narrow(attachment.toString()));
    attachment.setFilePath("C:\\x\\a.txt");
    attachment.setFileTransferMode("ASCII");
    attachment.setToBeDeleted(false);
    const zvAttachment copy(attachment);
    EXPECT_EQ("Attachment[FilePath:C:\\x\\a.txt FileType:ASCII ToBeDeleted:FALSE]", narrow(copy.toString()));
    attachment.setFileTransferMode(7);
    EXPECT_EQ(7, attachment.getFileTransferMode());
    EXPECT_EQ("BINARY", narrow(zvAttachment::getFileTransferModeStr(7)));
    EXPECT_EQ(1, copy.getFileTransferMode());
}

TEST(zvAttachmentTest, ModesMatchExactly) {
    EXPECT_EQ(1, zvAttachment::getFileTransferModeInt("ASCII"));
    for (const char* text : {"ascii", "ASCII ", "BINARY", ""}) {
        EXPECT_EQ(0, zvAttachment::getFileTransferModeInt(text)) << text;
    }
}

TEST(zvAttachmentListTest, OwnsItsAttachmentsInOrder) {
    zvAttachmentList list;
    EXPECT_EQ("Attachments[]", narrow(list.toString()));
    for (const char* path : {"b", "a"}) {
        auto* const attachment = new zvAttachment;
        attachment->setFilePath(path);
        list.addAttachment(attachment);
    }
    list.addAttachment(nullptr);
    EXPECT_EQ(2, list.numAttachments());
    EXPECT_EQ("a", narrow(list.getAttachment(1)->getFilePath()));
    EXPECT_EQ(nullptr, list.getAttachment(-1));
    EXPECT_EQ(nullptr, list.getAttachment(2));
    EXPECT_EQ(
        "Attachments[\nAttachment[FilePath:b FileType:BINARY ToBeDeleted:TRUE]"
        "\nAttachment[FilePath:a FileType:BINARY ToBeDeleted:TRUE]]",
        narrow(list.toString()));
    zvStringList files;
    files.addString("first");
    list.getFileList(files);
    EXPECT_EQ(3, files.numStrings());
    EXPECT_EQ("b", narrow(files.getString(1)));
    list.clear();
    EXPECT_TRUE(list.empty());
}

class zvAttachmentParserTest : public zvLoggedTest {};

TEST_F(zvAttachmentParserTest, ReadsAttachments) {
    const struct {
        const char* children;
        const char* expected;
        Lines warnings;
    } cases[] = {
        {"<FilePath>C:\\a.txt</FilePath>",
         "C:\\a.txt FileType:BINARY ToBeDeleted:TRUE",
         {noMode, noToBeDeleted}},
        {"<FileTransferMode>ASCII</FileTransferMode><FilePath>a</FilePath><ToBeDeleted>false</ToBeDeleted>",
         "a FileType:ASCII ToBeDeleted:FALSE",
         {}},
        {"<FilePath>\xC3\xA4 "
         "b</FilePath><FileTransferMode>ascii</FileTransferMode><ToBeDeleted>no</ToBeDeleted>",
         "\xC3\xA4 b FileType:BINARY ToBeDeleted:TRUE",
         {}},
        {"<!-- c "
         "--><Other>x</Other><ToBeDeleted/><FilePath>a</FilePath><FileTransferMode><x/></FileTransferMode>",
         "a FileType:BINARY ToBeDeleted:TRUE",
         {noToBeDeleted, noMode}},
        {"<ToBeDeleted>FALSE</ToBeDeleted>", nullptr, {noPath}},
        {"<FilePath/>", nullptr, {noPath}},
        {"only text", nullptr, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.children);
        zvRecordingLogger::reset();
        zvAttachmentList list;
        const std::string text =
            listOf(std::string("<Attachment>") + c.children + "</Attachment><Attachments/>");
        EXPECT_EQ(0, zvAttachmentParser().parse(&list, text.c_str(), false).getResult());
        EXPECT_EQ(c.warnings, zvRecordingLogger::lines("warn"));
        ASSERT_EQ(c.expected == nullptr ? 0 : 1, list.numAttachments());
        if (c.expected != nullptr) {
            EXPECT_EQ(std::string("Attachment[FilePath:") + c.expected + "]",
                      narrow(list.getAttachment(0)->toString()));
        }
    }
}

TEST_F(zvAttachmentParserTest, ReadsAFileAndLogsIt) {
    const std::string path =
        m_folder.write("attachments.xml",
                       listOf("\n <Attachment>\n  <FilePath>a</FilePath>\n <ToBeDeleted>x</ToBeDeleted>"
                              "<FileTransferMode>BINARY</FileTransferMode></Attachment>\n<Attachment/>\n"));
    zvAttachmentList list;
    zvAttachmentParser parser;
    EXPECT_TRUE(parser.parse(&list, path.c_str(), true).isOk());
    EXPECT_EQ((Lines{"debug: Started parsing attachments file", "debug: File path " + path,
                     "debug: Parsing attachment element", "debug: FilePath [a]",
                     "debug: Parsed attachment Attachment[FilePath:a FileType:BINARY ToBeDeleted:TRUE]]",
                     "debug: Parsing attachment element",
                     "debug: Attachment element does not have any child elements. Skipping this element."}),
              zvRecordingLogger::lines());
    EXPECT_EQ("zvCommonUtils.m/src/zvAttachmentParser", zvRecordingLogger::events().front().file);
    zvString tag;
    EXPECT_TRUE(parser.getTag(tag));
    EXPECT_EQ("AttachmentList", narrow(tag));
}

TEST_F(zvAttachmentParserTest, WithoutAttachmentsTheListIsUnchanged) {
    zvAttachmentList list;
    list.addAttachment(new zvAttachment);
    zvAttachmentParser parser;
    EXPECT_EQ(-1, parser.parse(&list, "<AttachmentList/>", false).getResult());
    EXPECT_EQ(-1, parser.parse(&list, "<AttachmentList>text<Other/></AttachmentList>", false).getResult());
    EXPECT_EQ(-1, parser.parse(&list, "", false).getResult());
    EXPECT_EQ(-1, parser.parse(nullptr, "<AttachmentList><Attachment/></AttachmentList>", false).getResult());
    EXPECT_EQ(1, list.numAttachments());
    EXPECT_EQ(Lines{}, zvRecordingLogger::lines("warn"));
    EXPECT_EQ(Lines{}, zvRecordingLogger::lines("error"));
}

TEST_F(zvAttachmentParserTest, ReadsNoOtherFile) {
    m_folder.write("secrets.properties", "password=hush");
    const std::string path =
        m_folder.write("list.xml", "<!DOCTYPE AttachmentList [<!ENTITY x SYSTEM 'secrets.properties'>]>" +
                                       listOf("<Attachment><FilePath>&x;</FilePath></Attachment>"));
    zvAttachmentList list;
    EXPECT_EQ("Error in opening attachments file [" + path + "]",
              messageThrownBy([&] { zvAttachmentParser().parse(&list, path.c_str(), true); }));
    EXPECT_TRUE(list.empty());
    for (const std::string& line : zvRecordingLogger::lines()) {
        EXPECT_EQ(line.find("hush"), std::string::npos) << line;
    }
    EXPECT_EQ(
        "XML document refused: it has the external entity \"secrets.properties\", and no other file is "
        "read for it: put the text into the document itself",
        zvRecordingLogger::lines("error").front());
}

TEST_F(zvAttachmentParserTest, ThrowsForInvalidFiles) {
    const struct {
        const char* input;
        bool isFile;
        const char* message;
    } cases[] = {
        {"<Attachments/>", false,
         "Root Node [AttachmentList] could note be found in attachments file [<Attachments/>]"},
        {"nonsense", false, "Error in opening attachments file [nonsense]"},
        {"no/such.xml", true, "Error in opening attachments file [no/such.xml]"},
    };
    for (const auto& c : cases) {
        zvRecordingLogger::reset();
        zvAttachmentList list;
        EXPECT_EQ(c.message, messageThrownBy([&] { zvAttachmentParser().parse(&list, c.input, c.isFile); }));
        EXPECT_EQ(Lines{c.message}, zvRecordingLogger::lines("error"));
        EXPECT_TRUE(list.empty());
    }
}

}  // namespace
