#include "zvXMLParser.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"
#include "zvXERCESDOMNODEList.h"

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

using Lines = std::vector<std::string>;
using List = std::unique_ptr<zvXERCESDOMNODEList>;

constexpr const char* sample =
    "<?xml version=\"1.0\"?>\n<!-- c --><Config Version='2' Empty='' B=\"&lt;&#228;\">\n"
    "  text <Section><Object Name='deep'> a </Object><Text> \n x y\t</Text><Blank>  </Blank></Section>\n"
    "  <Object Name='one'/><!-- c --><object/><Object Name='two'><Object Name='three'/></Object>"
    "<Cdata><!-- c --><![CDATA[<x>]]>tail</Cdata></Config>";

zvString nameOf(DOMNode* node, const char* attribute = "Name") {
    zvString value;
    return zvXMLParser().getAttribute(node, attribute, value) ? value : "-";
}

std::string namesIn(const List& list) {
    std::string names;
    for (int i = 0; i < list->numDOMNode(); ++i) {
        names += narrow(nameOf(list->getDOMNode(i))) + " ";
    }
    return names;
}

zvString writtenText(zvXMLParser& parser, const char* encoding) {
    zvString out;
    return parser.writeTreeToString(out, encoding) ? out : "failed";
}

std::string written(zvXMLParser& parser, const char* encoding = "UTF-8") {
    return narrow(writtenText(parser, encoding));
}

class zvXMLParserTest : public zvLoggedTest {
protected:
    zvXMLParserTest() : m_parser(sample, false) {}

    DOMElement* root() { return m_parser.getRootElement(); }

    zvXMLParser m_parser;
};

TEST_F(zvXMLParserTest, cursorGoesFromElementToElement) {
    using Move = bool (zvXMLParser::*)(zvString&);
    const struct {
        Move move;
        bool moves;
        const char* tag;
        const char* current;
    } steps[] = {
        {&zvXMLParser::getNextSibling, false, "", "Config"},
        {&zvXMLParser::getFirstChild, true, "Section", "Section"},
        {&zvXMLParser::getFirstChild, true, "Object", "Object"},
        {&zvXMLParser::getFirstChild, false, "", "Object"},  // its only child is a text
        {&zvXMLParser::getNextSibling, true, "Text", "Text"},
        {&zvXMLParser::getRoot, true, "Config", "Config"},
        {&zvXMLParser::getParent, true, "#document", "#document"},
        {&zvXMLParser::getParent, false, "", "#document"},
        {&zvXMLParser::getRoot, false, "", "#document"},
        {&zvXMLParser::getFirstChild, true, "Config", "Config"},
    };
    EXPECT_EQ(nullptr, m_parser.getRootNode());
    for (const auto& step : steps) {
        SCOPED_TRACE(step.current);
        zvString tag("before");
        EXPECT_EQ(step.moves, (m_parser.*step.move)(tag));
        EXPECT_EQ(step.tag, narrow(tag));
        zvString current;
        EXPECT_TRUE(m_parser.getTag(current));
        EXPECT_EQ(step.current, narrow(current));
    }
    EXPECT_EQ(root(), m_parser.getRootNode());
}

TEST_F(zvXMLParserTest, readsTheCurrentNode) {
    zvString value;
    zvStringList names, values;
    EXPECT_TRUE(m_parser.getMemberValue(value));
    EXPECT_EQ("\n  text ", narrow(value));
    EXPECT_TRUE(m_parser.getAttribute("B", value));
    EXPECT_EQ(value, u"<\u00E4");
    EXPECT_TRUE(m_parser.getAttribute("Empty", value));
    EXPECT_TRUE(value.empty());
    EXPECT_FALSE(m_parser.getAttribute("b", value));
    ASSERT_TRUE(m_parser.getAttributes(names, values));
    ASSERT_EQ(3, names.numStrings());
    EXPECT_EQ("Version", narrow(names.getString(2)));
    EXPECT_EQ("2", narrow(values.getString(2)));
    EXPECT_EQ(3, values.numStrings());
    // A document has neither.
    ASSERT_TRUE(m_parser.changeCurrentNode(root()->getOwnerDocument()));
    EXPECT_FALSE(m_parser.getMemberValue(value));
    EXPECT_FALSE(m_parser.getAttributes(names, values));
    EXPECT_TRUE(names.empty() && values.empty());
    EXPECT_FALSE(m_parser.changeCurrentNode(nullptr));
    EXPECT_EQ(root()->getOwnerDocument(), m_parser.getCurrentNode());
}

TEST_F(zvXMLParserTest, findsElementsBelowAnElement) {
    EXPECT_EQ("deep", nameOf(m_parser.getChildElement(root(), "Object")));
    EXPECT_EQ(nullptr, m_parser.getChildElement(root(), "Config"));
    EXPECT_EQ(nullptr, m_parser.getChildElement(root(), ""));
    EXPECT_EQ("deep one two three ", namesIn(List(m_parser.getChildElementsByTagName(root(), "Object"))));
    EXPECT_EQ("one two ", namesIn(List(m_parser.getChildNodes(root(), "Object"))));
    // The search ends with the element's own descendants.
    DOMElement* const section = m_parser.getChildElement(root(), "Section");
    EXPECT_EQ("deep ", namesIn(List(m_parser.getChildElementsByTagName(section, "Object"))));
    EXPECT_EQ(nullptr, m_parser.getChildElement(section, "Cdata"));
    EXPECT_EQ(nullptr, m_parser.getChildElement(m_parser.getChildElement(root(), "object"), "Object"));
}

TEST_F(zvXMLParserTest, findsTexts) {
    EXPECT_EQ("x y", narrow(m_parser.getChildTextTrim(root(), "Text")));
    EXPECT_EQ("a", narrow(m_parser.getChildText(root(), "Object", true)));
    EXPECT_EQ("tail", narrow(m_parser.getChildText(root(), "Cdata", false)));
    EXPECT_EQ("", narrow(m_parser.getChildTextTrim(root(), "Blank")));
    EXPECT_EQ("", narrow(m_parser.getChildTextTrim(root(), "object")));
    const unsigned short units[] = {'a', 0xE4, 0xD83D, 0xDE00, 0};
    EXPECT_EQ(zvXMLParser::getStringFromXMLCh(units), u"a\u00E4\U0001F600");
    EXPECT_EQ("Config", narrow(zvXMLParser::getStringFromXMLCh(root()->getTagName())));
    EXPECT_TRUE(zvXMLParser::getStringFromXMLCh(nullptr).empty());
}

TEST_F(zvXMLParserTest, requiredThingsThatAreMissingThrow) {
    DOMElement* const object = m_parser.getChildElement(root(), "Object");
    EXPECT_EQ("deep", narrow(m_parser.getAttributeValue(object, "Name", true, true)));
    EXPECT_EQ("", narrow(m_parser.getAttributeValue(object, "X", false, true)));
    EXPECT_EQ("", narrow(m_parser.getAttributeValue(root(), "Empty", true, false)));
    EXPECT_NE(nullptr, m_parser.getChildElement(root(), "Text", true));
    const struct {
        std::function<void()> query;
        const char* message;
    } cases[] = {
        {[&] { m_parser.getAttributeValue(object, "X", true, false); },
         "Required attribute 'X' not provided for element 'Object'"},
        {[&] { m_parser.getAttributeValue(root(), "Empty", false, true); },
         "Value of attribute 'Empty' not provided for element 'Config'"},
        {[&] { m_parser.getChildElement(root(), "X", true); },
         "Required child element 'X' not provided below element Config"},
        {[&] { m_parser.getChildText(root(), "Blank", true); },
         "Required child element 'Blank' not provided below element Config for Event"},
    };
    for (const auto& c : cases) {
        zvRecordingLogger::reset();
        EXPECT_EQ(c.message, messageThrownBy(c.query));
        EXPECT_EQ(Lines{std::string("error: ") + c.message}, zvRecordingLogger::lines());
        EXPECT_EQ("zvXMLUtils.m/src/zvXMLParser", zvRecordingLogger::events().back().file);
    }
}

TEST_F(zvXMLParserTest, nullsGiveEmptyResultsInSilence) {
    zvXMLParser parser;
    zvString tag("kept");
    zvStringList names, values;
    EXPECT_EQ(nullptr, parser.getRootElement());
    EXPECT_EQ(nullptr, parser.getCurrentNode());
    EXPECT_FALSE(parser.getRoot(tag) || parser.getParent(tag) || parser.getFirstChild(tag) ||
                 parser.getTag(tag));
    EXPECT_EQ("kept", narrow(tag));
    EXPECT_FALSE(parser.getNextSibling(tag) || parser.getMemberValue(tag) || parser.getAttribute("a", tag));
    EXPECT_FALSE(parser.getAttributes(names, values) || parser.addEndTag());
    EXPECT_EQ(nullptr, parser.getChildElement(nullptr, "a", true));
    EXPECT_EQ(nullptr, parser.getChildTextNode(nullptr));
    EXPECT_TRUE(parser.getChildText(nullptr, "a", true).empty());
    EXPECT_TRUE(parser.getAttributeValue(nullptr, "a", true, true).empty());
    EXPECT_TRUE(List(parser.getChildElementsByTagName(nullptr, "a"))->empty());
    EXPECT_TRUE(List(parser.getChildNodes(nullptr, "a"))->empty());
    EXPECT_FALSE(parser.loadXMLFromString(static_cast<const char*>(nullptr), false));
    EXPECT_FALSE(parser.loadXMLFromString(zvString(), false) || parser.loadXMLFromString(zvString(), true));
    EXPECT_EQ(Lines{}, zvRecordingLogger::lines());
}

TEST(zvXERCESDOMNODEListTest, isAListOfNodes) {
    zvXMLParser parser("<a><b/></a>", false);
    DOMNode* const a = parser.getRootElement();
    zvXERCESDOMNODEList list;
    EXPECT_EQ(nullptr, list.back());
    list.pop();
    EXPECT_TRUE(list.addDOMNode(a) && list.addDOMNode(a->getFirstChild()));
    zvXERCESDOMNODEList copy(list);
    EXPECT_EQ(a->getFirstChild(), copy.back());
    copy.pop();
    EXPECT_EQ(1, copy.numDOMNode());
    EXPECT_EQ(a, copy.getDOMNode(0));
    EXPECT_EQ(nullptr, list.getDOMNode(-1));
    EXPECT_EQ(nullptr, list.getDOMNode(2));
    EXPECT_EQ(2, list.numDOMNode());
    list.clear();
    EXPECT_TRUE(list.empty());
}

TEST_F(zvXMLParserTest, buildsAndWrites) {
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

TEST_F(zvXMLParserTest, whatIsNoNameChangesNothing) {
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

TEST_F(zvXMLParserTest, loadingReplacesTheDocument) {
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

TEST_F(zvXMLParserTest, warningsAndErrorsFailTheLoad) {
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

TEST_F(zvXMLParserTest, fatalErrorEndsTheDocumentWhereItStands) {
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

TEST_F(zvXMLParserTest, entitiesBecomeText) {
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

TEST_F(zvXMLParserTest, bytesAreInTheDeclaredEncodingAndCharactersAreWhatTheyAre) {
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

TEST_F(zvXMLParserTest, writesInOtherEncodings) {
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

TEST_F(zvXMLParserTest, loadsFilesByPathAndByUri) {
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

TEST_F(zvXMLParserTest, refusesWhatIsNoFile) {
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

TEST_F(zvXMLParserTest, writesToFilesAndStandardOutput) {
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

TEST_F(zvXMLParserTest, aFailedWriteIsToldAndLeavesFilesAlone) {
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

TEST(zvXMLPlatformTest, parsersComeAndGoInAnyOrder) {
    auto first = std::make_unique<zvXMLParser>("<a x='1'/>", false);
    auto second = std::make_unique<zvXMLParser>("<b x='2'/>", false);
    first.reset();
    EXPECT_EQ("2", nameOf(second->getRootElement(), "x"));
    EXPECT_TRUE(second->addStartTag("c"));
    first = std::make_unique<zvXMLParser>("<c x='3'/>", false);
    second.reset();
    EXPECT_EQ("3", nameOf(first->getRootElement(), "x"));
    EXPECT_NE("failed", written(*first));
}

TEST(zvXMLPlatformTest, leavesAHostsPlatformAlone) {
    xercesc::XMLPlatformUtils::Initialize();
    xercesc::DOMImplementation* const host = xercesc::DOMImplementationRegistry::getDOMImplementation(u"LS");
    xercesc::DOMDocument* const document = host->createDocument(nullptr, u"host", nullptr);
    auto parser = std::make_unique<zvXMLParser>("<a x='1'/>", false);
    parser.reset();
    EXPECT_NE(nullptr, document->getDocumentElement()->appendChild(document->createElement(u"child")));
    document->release();
    // And the other way round.
    parser = std::make_unique<zvXMLParser>("<a x='1'/>", false);
    xercesc::XMLPlatformUtils::Terminate();
    EXPECT_EQ("1", nameOf(parser->getRootElement(), "x"));
}

}  // namespace
