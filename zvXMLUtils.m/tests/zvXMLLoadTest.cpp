#include <filesystem>
#include <string>

#include "zvXMLTestSupport.h"

namespace {

class zvXMLLoadTest : public zvXMLSampleTest {};

TEST_F(zvXMLLoadTest, LoadingReplacesTheDocument) {
    zvString tag;
    ASSERT_TRUE(m_parser.getRoot(tag));
    EXPECT_TRUE(m_parser.loadXMLFromString("<other><Object Name='x'/></other>", false));
    EXPECT_EQ(nullptr, m_parser.getRootNode());
    EXPECT_EQ("x", nameOf(m_parser.getChildElement(root(), "Object")));
    EXPECT_FALSE(m_parser.loadXMLFromString("nothing", false));
    EXPECT_EQ(nullptr, m_parser.getRootElement());
    EXPECT_EQ(nullptr, m_parser.getCurrentNode());
    EXPECT_EQ("failed", written(m_parser));
    EXPECT_FALSE(m_parser.addStartTag("a"));
}

TEST_F(zvXMLLoadTest, WarningsAndErrorsFailTheLoad) {
    const struct {
        const char* document;
        const char* line;
    } cases[] = {
        {"<!DOCTYPE r [<!ELEMENT r (a?)>]>\n<r/>",
         "\"XML PARSING ERROR: Severity code = 1, Error message = element 'a' is referenced in a content "
         "model but "
         "was never declared, Node name = #document, Node value = , Error line number = 1, Error column "
         "number = "
         "33.\""},
        {"<!DOCTYPE r [<!ELEMENT r ANY>]><r>t<x/></r>",
         "\"XML PARSING ERROR: Severity code = 2, Error message = no declaration found for element 'x', Node "
         "name "
         "= #text, Node value = t, Error line number = 1, Error column number = 38.\""},
    };
    for (const auto& c : cases) {
        zvRecordingLogger::reset();
        EXPECT_FALSE(zvXMLParser().loadXMLFromString(c.document, false));
        const std::string severity = std::string(c.line).substr(36, 1);
        EXPECT_EQ((Lines{"info: Start: zvDOMErrorHandler::handleError",
                         "info: XML Parsing Severity Code = " + severity,
                         "info: End: zvDOMErrorHandler::handleError", "error: XML PARSING ERROR",
                         std::string("error: ") + c.line}),
                  zvRecordingLogger::lines());
    }
    EXPECT_TRUE(zvXMLParser().loadXMLFromString("<!DOCTYPE r [<!ELEMENT r ANY>]><r>t</r>", false));
}

TEST_F(zvXMLLoadTest, FatalErrorEndsTheDocumentWhereItStands) {
    const struct {
        const char* document;
        bool loads;
    } cases[] = {
        {"<a><b/>text</c></a>", true}, {"<a", false}, {"", false}, {"<?xml version='1.0'?><!-- -->", false}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.document);
        zvRecordingLogger::reset();
        zvXMLParser parser;
        EXPECT_EQ(c.loads, parser.loadXMLFromString(c.document, false));
        EXPECT_EQ(c.loads, parser.getRootElement() != nullptr);
        EXPECT_EQ((Lines{"Start: zvDOMErrorHandler::handleError", "XML Parsing Severity Code = 3",
                         "End: zvDOMErrorHandler::handleError"}),
                  zvRecordingLogger::lines("info"));
        EXPECT_EQ(Lines{}, zvRecordingLogger::lines("error"));
        ASSERT_EQ(1U, zvRecordingLogger::lines("warn").size());
        EXPECT_EQ(0U, zvRecordingLogger::lines("warn")[0].find("XML document read up to line 1, column "));
        EXPECT_TRUE(!c.loads || parser.addStartTag("c"));
        EXPECT_FALSE(parser.addStartTag("<"));
    }
}

TEST_F(zvXMLLoadTest, EntitiesBecomeText) {
    zvXMLParser parser;
    ASSERT_TRUE(
        parser.loadXMLFromString("<!DOCTYPE r [<!ELEMENT r ANY><!ATTLIST r a CDATA #IMPLIED><!ENTITY e "
                                 "'in&#32;it'>]><r a='&e;'>x &e; y</r>",
                                 false));
    zvString value;
    EXPECT_TRUE(parser.getMemberValue(value));
    EXPECT_EQ("x in it y", narrow(value));
    EXPECT_TRUE(parser.getAttribute("a", value));
    EXPECT_EQ("in it", narrow(value));
}

TEST_F(zvXMLLoadTest, BytesAreInTheDeclaredEncodingAndCharactersAreWhatTheyAre) {
    const char* const latin1 = "<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xE4'/>";
    zvXMLParser parser;
    ASSERT_TRUE(parser.loadXMLFromString(latin1, false));
    EXPECT_EQ(nameOf(parser.getRootElement(), "a"), u"\u00E4");
    ASSERT_TRUE(parser.loadXMLFromString(
        zvString(u"<?xml version='1.0' encoding='ISO-8859-1'?><r a='\u00E4'/>"), false));
    EXPECT_EQ(nameOf(parser.getRootElement(), "a"), u"\u00E4");
    ASSERT_TRUE(parser.loadXMLFromString("\xEF\xBB\xBF<r a='\xC3\xA4'/>", false));
    EXPECT_EQ(nameOf(parser.getRootElement(), "a"), u"\u00E4");
    // A text that the locale cannot tell is refused.
    ASSERT_EQ(parser.loadXMLFromString(zvString(u"\uFEFF<r a='\U0001F600'/>"), false), localeIsUtf8());
    EXPECT_TRUE(!localeIsUtf8() || nameOf(parser.getRootElement(), "a") == u"\U0001F600");
    EXPECT_FALSE(parser.loadXMLFromString(zvString(u"<r>\xD800</r>"), false));
}

TEST_F(zvXMLLoadTest, LoadsFilesByPathAndByUri) {
    const std::string umlaut = narrow(u"\u00E4");
    const std::string name = "a b" + umlaut + "%23#100%.xml";
    const std::string path = m_folder.write("sub dir/" + name, "<r>file</r>");
    const std::string folder = m_folder.path().string();
    const std::string backslashed = folder + "\\sub dir\\" + name;
    const std::string root = onWindows ? "/" + m_folder.path().generic_string() : folder;
    const std::string encoded =
        root + "/sub%20dir/a%20b" + (localeIsUtf8() ? "%C3%A4" : "%E4") + "%2523%23100%25.xml";
    for (const std::string& location : {path, backslashed, "file://" + encoded, "file://localhost" + encoded,
                                        "FILE:" + encoded, m_folder.file("sub dir/../sub dir/" + name)}) {
        SCOPED_TRACE(location);
        zvXMLParser parser(location.c_str(), true);
        zvString value;
        EXPECT_TRUE(parser.getMemberValue(value));
        EXPECT_EQ("file", narrow(value));
    }
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.path() / "sub dir");
    EXPECT_TRUE(zvXMLParser().loadXMLFromString(name.c_str(), true));
    std::filesystem::current_path(before);
}

TEST_F(zvXMLLoadTest, RefusesWhatIsNoFile) {
    const std::string folder = m_folder.path().string();
    for (const std::string& location :
         {std::string("http://127.0.0.1:9/x.xml"), std::string("ftp://h/x.xml"),
          "file://other.host" + folder + "/x.xml", folder, std::string("file:")}) {
        SCOPED_TRACE(location);
        zvRecordingLogger::reset();
        EXPECT_FALSE(zvXMLParser().loadXMLFromString(location.c_str(), true));
        ASSERT_EQ(1U, zvRecordingLogger::lines("error").size());
        EXPECT_EQ(0U, zvRecordingLogger::lines("error")[0].find("XML document refused: \"" + location +
                                                                "\" is not a "));
    }
    // A missing file is the parser's own fatal error.
    zvRecordingLogger::reset();
    EXPECT_FALSE(zvXMLParser().loadXMLFromString(m_folder.file("missing.xml").c_str(), true));
    EXPECT_EQ(1U, zvRecordingLogger::lines("warn").size());
    EXPECT_NE(std::string::npos, zvRecordingLogger::lines("warn")[0].find("missing.xml"));
}

}  // namespace
