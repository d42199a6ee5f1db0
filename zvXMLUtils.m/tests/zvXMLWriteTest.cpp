#include <string>

#include "zvPlatform.h"
#include "zvTestLocale.h"
#include "zvXMLTestSupport.h"

namespace {

class zvXMLWriteTest : public zvXMLSampleTest {};

TEST_F(zvXMLWriteTest, BuildsAndWrites) {
    zvXMLParser parser;
    ASSERT_TRUE(parser.createXMLTree("r"));
    EXPECT_TRUE(parser.addStartTag("child") && parser.addAttribute("a", "<\"\xC3\xA4") &&
                parser.addAttribute("b", ""));
    EXPECT_TRUE(parser.addMemberValue("x<y \xF0\x9F\x98\x80"));
    EXPECT_FALSE(parser.addMemberValue(""));
    EXPECT_TRUE(parser.addEndTag() && parser.addStartTag("last") && parser.addEndTag());
    const std::string body =
        "<r><child a=\"&lt;&quot;\xC3\xA4\" b=\"\">x&lt;y \xF0\x9F\x98\x80</child><last/></r>";
    const std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?>" + body;
    EXPECT_EQ(text, written(parser));
    EXPECT_EQ(text, written(parser, ""));
    // Loaded again it is the same document.
    EXPECT_TRUE(parser.loadXMLFromString(zvString(text.c_str()), false));
    EXPECT_EQ(text, written(parser));
    EXPECT_TRUE(parser.createXMLTree("p:other", "urn:n"));
    EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?><p:other xmlns:p=\"urn:n\"/>",
              written(parser));
}

TEST_F(zvXMLWriteTest, WhatIsNoNameChangesNothing) {
    for (const char* name : {"", "a b", "1", "<", "a>"}) {
        SCOPED_TRACE(name);
        zvXMLParser parser;
        EXPECT_FALSE(parser.createXMLTree(name));
        EXPECT_EQ(nullptr, parser.getCurrentNode());
        ASSERT_TRUE(parser.createXMLTree("r"));
        EXPECT_FALSE(parser.addStartTag(name));
        EXPECT_FALSE(parser.addAttribute(name, "v"));
        EXPECT_EQ(parser.getRootElement(), parser.getCurrentNode());
        EXPECT_NE(std::string::npos, written(parser).find("<r/>"));
        EXPECT_EQ(3U, zvRecordingLogger::lines("error").size());
        EXPECT_EQ(0U, zvRecordingLogger::lines("error")[0].find(
                          "Unexpected exception during creating document: '"));
        zvRecordingLogger::reset();
    }
    ASSERT_TRUE(m_parser.changeCurrentNode(root()->getOwnerDocument()));
    EXPECT_FALSE(m_parser.addStartTag("second") || m_parser.addAttribute("a", "b") ||
                 m_parser.addMemberValue("t"));
    EXPECT_FALSE(zvXMLParser().addStartTag("a") || zvXMLParser().createXMLTree("p:r"));
}

TEST_F(zvXMLWriteTest, WritesInOtherEncodings) {
    zvXMLParser parser;
    ASSERT_TRUE(parser.loadXMLFromString("<r>\xC3\xA4\xF0\x9F\x98\x80</r>", false));
    EXPECT_NE(std::string::npos, written(parser, "ISO-8859-1").find("\"ISO-8859-1\""));
    EXPECT_GT(writtenText(parser, "ISO-8859-1").find(u"<r>\u00E4&#x1F600;</r>"), 0);
    EXPECT_GT(writtenText(parser, "UTF-16").find(u"<r>\u00E4\U0001F600</r>"), 0);
    EXPECT_NE(std::string::npos, written(parser, "US-ASCII").find("<r>&#xE4;&#x1F600;</r>"));
    const std::string path = m_folder.file("latin1.xml");
    EXPECT_TRUE(parser.writeTreeToFile(path.c_str(), "ISO-8859-1"));
    EXPECT_NE(std::string::npos, readAll(path).find("<r>\xE4&#x1F600;</r>"));
    EXPECT_EQ(Lines{}, zvRecordingLogger::lines("error"));
    EXPECT_EQ("failed", written(parser, "no-such-encoding"));
    ASSERT_TRUE(parser.createXMLTree(u"\u00E4"));
    EXPECT_EQ("failed", written(parser, "US-ASCII"));
    EXPECT_EQ(2U, zvRecordingLogger::lines("error").size());
}

TEST_F(zvXMLWriteTest, WritesToFilesAndStandardOutput) {
    zvXMLParser parser("<r>a\nb</r>", false);
    const std::string folder = m_folder.path().string();
    const std::string name = "o " + narrow(u"\u00E4") + ".xml";
    const std::string expected = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"no\" ?><r>a\nb</r>";
    EXPECT_TRUE(parser.writeTreeToFile((folder + "\\" + name).c_str(), "UTF-8"));
    EXPECT_EQ(expected, readAll(zvPlatform::pathOf(m_folder.file(name))));
    testing::internal::CaptureStdout();
    EXPECT_TRUE(parser.writeTreeToFile("", "UTF-8"));
    EXPECT_EQ(expected, testing::internal::GetCapturedStdout());
}

TEST_F(zvXMLWriteTest, WritesAndReadsFilesInEveryEncoding) {
    for (const zvTestEncoding& encoding : zvTestEncodings) {
        const zvTestLocale locale(encoding.definition, encoding.encoding);
        if (!locale.isSet()) {
            GTEST_SKIP() << "the locale " << encoding.definition << " in " << encoding.encoding;
        }
        const std::string name = encoding.character;
        std::filesystem::create_directories(m_folder.path() / name);
        const std::string file = "\\" + name + ".xml";
        const zvString path = (m_folder.path().string() + "\\" + name).append(file).c_str();
        zvXMLParser parser("<r>a</r>", false);
        EXPECT_TRUE(parser.writeTreeToFile(path, "UTF-8")) << encoding.encoding;
        EXPECT_TRUE(std::filesystem::exists(m_folder.path() / name / (name + ".xml"))) << encoding.encoding;
        EXPECT_TRUE(zvXMLParser().loadXMLFromString(path, true)) << encoding.encoding;
        EXPECT_EQ(Lines{}, zvRecordingLogger::lines("error"));
    }
}

TEST_F(zvXMLWriteTest, AFailedWriteIsToldAndLeavesFilesAlone) {
    zvXMLParser parser("<r/>", false);
    const std::string folder = m_folder.path().string();
    EXPECT_FALSE(parser.writeTreeToFile((folder + "\\no\\x.xml").c_str(), "UTF-8"));
    EXPECT_EQ(Lines{"The data cannot be written to the given location \"" + folder + "\\no\""},
              zvRecordingLogger::lines("error"));
    zvRecordingLogger::reset();
    EXPECT_FALSE(parser.writeTreeToFile((folder + "/no/x.xml").c_str(), "UTF-8"));
    Lines expected = {"The data cannot be written to " + folder + "/no/x.xml: No such file or directory"};
    if (!onWindows) {
        EXPECT_FALSE(parser.writeTreeToFile("/dev/full", "UTF-8"));
        expected.emplace_back("The data cannot be written to /dev/full: No space left on device");
    }
    EXPECT_EQ(expected, zvRecordingLogger::lines("error"));
    const std::string kept = m_folder.write("kept.xml", "kept");
    EXPECT_FALSE(parser.writeTreeToFile(kept.c_str(), "no-such-encoding"));
    EXPECT_FALSE(zvXMLParser().writeTreeToFile(kept.c_str(), "UTF-8"));
    EXPECT_EQ("kept", readAll(kept));
}

}  // namespace
