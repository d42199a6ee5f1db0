#include "zvXMLParser.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <xercesc/dom/DOM.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "zvXERCESDOMNODEList.h"
#include "zvXMLTestSupport.h"

using xercesc::DOMElement;
using xercesc::DOMNode;

namespace {

using List = std::unique_ptr<zvXERCESDOMNODEList>;

std::string namesIn(const List& list) {
    std::string names;
    for (int i = 0; i < list->numDOMNode(); ++i) {
        names += narrow(nameOf(list->getDOMNode(i))) + " ";
    }
    return names;
}

class zvXMLParserTest : public zvXMLSampleTest {};

TEST_F(zvXMLParserTest, CursorGoesFromElementToElement) {
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

TEST_F(zvXMLParserTest, ReadsTheCurrentNode) {
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

TEST_F(zvXMLParserTest, FindsElementsBelowAnElement) {
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

TEST_F(zvXMLParserTest, FindsTexts) {
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

TEST_F(zvXMLParserTest, RequiredThingsThatAreMissingThrow) {
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

TEST_F(zvXMLParserTest, NullsGiveEmptyResultsInSilence) {
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

TEST(zvXERCESDOMNODEListTest, IsAListOfNodes) {
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

TEST(zvXMLPlatformTest, ParsersComeAndGoInAnyOrder) {
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

TEST(zvXMLPlatformTest, LeavesAHostsPlatformAlone) {
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
