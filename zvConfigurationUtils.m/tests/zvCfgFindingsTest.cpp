#include "zvAttachmentList.h"
#include "zvAttachmentParser.h"
#include "zvConfigurationTestSupport.h"

namespace {

using InvalidRule = zvCfgMgrXmlParser::InvalidRule;

// Findings as lines: "line:column severity kind object|attribute".
class Findings : public zvFindingSink {
public:
    void report(const zvFinding& finding) override {
        const bool isError = finding.severity == zvFinding::Severity::error;
        lines.push_back(std::to_string(finding.position.line) + ":" +
                        std::to_string(finding.position.column) + (isError ? " error " : " warning ") +
                        std::string(finding.kind) + " " + narrow(finding.object) + "|" +
                        narrow(finding.attribute));
        texts.push_back(narrow(finding.text));
    }
    Lines lines;
    Lines texts;
};

class zvCfgFindingsTest : public zvConfigurationTest {
protected:
    zvResult parse(const std::string& document, InvalidRule invalidRule = InvalidRule::endsTheParse) {
        zvCfgConfigManager::destroyCfgConfigManager();
        m_findings.lines.clear();
        m_findings.texts.clear();
        return zvCfgMgrXmlParser(&m_findings, invalidRule).parse(document.c_str(), false);
    }

    Findings m_findings;
};

std::string inSections(const std::string& sections) {
    return "<?xml version='1.0'?>\n<CustomizationConfig>\n" + sections + "\n</CustomizationConfig>";
}

TEST_F(zvCfgFindingsTest, NamesThePlaceOfEachFault) {
    struct Case {
        std::string document;
        Lines lines;
    };
    const Case cases[] = {
        {inSections("<ObjectConfig>\n</ObjectConfig>"), {"3:1 error empty-section |"}},
        // A comment, an instruction, CDATA and text of several lines all move the place.
        {inSections(
             "<ObjectConfig><Object LocalCustType='T'><!-- \n -->"
             "<Attribute LocalName='a'/><?p \n\n?><Attribute LocalName='a' \n RemoteName='b'/><![CDATA[\n]]>"
             "<Attribute/></Object></ObjectConfig>"),
         {"6:3 warning duplicate-name object \"T\" -> \"\"|a",
          "8:4 error missing-name object \"T\" -> \"\"|"}},
        {inSections("<ObjectConfig><FileObject><AllowedExtns>\n<Extn Name='a' TransferMode='ASCII'/>"
                    "<Extn Name='a'/>\n<Extn/></AllowedExtns>\n<AllowedExtns/></FileObject></ObjectConfig>"),
         {"4:38 warning unknown-transfer-mode file object \"\" -> \"\"|a",
          "4:38 error duplicate-name file object \"\" -> \"\"|a",
          "5:1 warning unknown-transfer-mode file object \"\" -> \"\"|",
          "5:1 error missing-name file object \"\" -> \"\"|",
          "6:1 error empty-section file object \"\" -> \"\"|"}},
        {inSections(
             "<LifecycleConfig><Lifecycle ObjectType='T'><LifecycleGraph>\n<LcmState Name='A'>\n"
             "<OutgoingTransition Type='Jump' ToState='A'/></LcmState>\n<LcmState/>\n"
             "<LcmState Name='B' Key='A'/></LifecycleGraph>\n<LifecycleStateMap>"
             "<MapEntry LocalName='A' RemoteName='r'/>\n<MapEntry LocalName='B' RemoteName='r'/>\n"
             "<MapEntry LocalName='C' RemoteName='s'/></LifecycleStateMap></Lifecycle></LifecycleConfig>"),
         {"6:1 error missing-name lifecycle \"T\"|", "7:1 error duplicate-name lifecycle \"T\"|B",
          "5:1 error unknown-transition lifecycle \"T\"|A", "9:1 error duplicate-name lifecycle \"T\"|B",
          "10:1 error unknown-state lifecycle \"T\"|C"}},
        {inSections("<ViewConfig><ViewCollection/></ViewConfig>"), {"3:13 error missing-name |"}},
        {inSections("<ViewConfig><ViewCollection Name='C'>\n<View LocalName='a' RemoteName='b'/>\n"
                    "<View LocalName='a'/></ViewCollection></ViewConfig>"),
         {"5:1 error duplicate-name view collection \"C\"|a",
          "5:1 error missing-name view collection \"C\"|a"}},
        {inSections("<ViewConfig>\n<ViewCollection Name='C'>\n<View"), {"6:1 error not-well-formed |"}},
        {"<!DOCTYPE a [<!ELEMENT a EMPTY>]>\n<a><b/></a>",
         {"2:6 error invalid-markup |", "2:12 error invalid-markup |"}},
        {"<Other/>", {"1:9 error wrong-root |"}},
        {"<CustomizationConfig/>", {"1:23 error empty-document |"}},
        {"<!DOCTYPE a [<!ENTITY e SYSTEM 'e'>]><a>&e;</a>",
         {"1:40 error invalid-markup |", "0:0 error not-loaded |"}},
    };
    for (const Case& c : cases) {
        static_cast<void>(parse(c.document));
        EXPECT_EQ(m_findings.lines, c.lines) << c.document;
    }
}

TEST_F(zvCfgFindingsTest, AnInvalidRuleEndsTheParseOrLeavesOutItsObject) {
    const std::string document = inSections(
        "<ObjectConfig><Object LocalCustType='A'/>\n<Object LocalCustType='B'>\n"
        "  <MappingRule>{a} = '1' and</MappingRule></Object>\n<Object LocalCustType='C'/></ObjectConfig>");
    const Lines lines = {"5:3 error invalid-rule object \"B\" -> \"\"|"};

    EXPECT_EQ(parse(document).getResult(), -1);
    EXPECT_EQ(m_findings.lines, lines);
    EXPECT_EQ(manager().numObjects(), 1);

    EXPECT_TRUE(parse(document, InvalidRule::leavesOutItsObject).isOk());
    EXPECT_EQ(m_findings.lines, lines);
    EXPECT_EQ(
        m_findings.texts,
        Lines{"the mapping rule does not parse at its character 11: Valid condition operator not found"});
    ASSERT_EQ(manager().numObjects(), 2);
    EXPECT_EQ(manager().getObjectAt(1)->getPosition().line, 6);
}

TEST_F(zvCfgFindingsTest, TextAfterACompleteRuleIsAWarning) {
    const std::pair<const char*, int> rules[] = {{"{a} = '1'", 0},
                                                 {" {a} = '1' ", 0},
                                                 {"({a} = '1') AND NOT {b} = '{c}'", 0},
                                                 {"{a} = '1' {b}", 11},
                                                 {"{a} = '1' AND {b} = '2' = {c}", 25},
                                                 {" {a} = '1'  'b' = ", 13},
                                                 {"({a} = '1' {b}) ", 12},
                                                 {"{a} = '1' &gt;", 11}};
    for (const auto& [rule, character] : rules) {
        EXPECT_TRUE(parse(inSections("<ObjectConfig>\n<Object LocalCustType='T'><MappingRule>" +
                                     std::string(rule) + "</MappingRule></Object></ObjectConfig>"))
                        .isOk())
            << rule;
        EXPECT_EQ(m_findings.lines,
                  character == 0 ? Lines{} : Lines{"4:27 warning ignored-text object \"T\" -> \"\"|"})
            << rule;
        EXPECT_EQ(m_findings.texts, character == 0
                                        ? Lines{}
                                        : Lines{"the mapping rule is complete before its character " +
                                                std::to_string(character) + ": what follows is ignored"})
            << rule;
    }
}

TEST_F(zvCfgFindingsTest, PartsKnowTheirPlaceForThoseWhoAskOnly) {
    const std::string document = inSections(
        "<ObjectConfig>\n <Object>\n<Attribute LocalName='a'/></Object></ObjectConfig>\n"
        "<LifecycleConfig><Lifecycle ObjectType='T'><LifecycleGraph>\n<LcmState Name='A'/>"
        "</LifecycleGraph></Lifecycle></LifecycleConfig>");
    const auto places = [] {
        std::string text;
        for (const zvTextPosition& place : {manager().getObjectAt(0)->getPosition(),
                                            manager().getObjectAt(0)->getAttribute(0)->getPosition(),
                                            manager().getLifecycle("T")->getStateAt(0)->getPosition()}) {
            text += std::to_string(place.line) + ":" + std::to_string(place.column) + " ";
        }
        return text;
    };
    EXPECT_TRUE(parse(document).isOk());
    EXPECT_EQ(places(), "4:2 5:1 7:1 ");
    zvCfgConfigManager::destroyCfgConfigManager();
    EXPECT_TRUE(zvCfgMgrXmlParser().parse(document.c_str(), false).isOk());
    EXPECT_EQ(places(), "0:0 0:0 0:0 ");
}

TEST_F(zvCfgFindingsTest, AListOfAttachmentsHasFindingsToo) {
    zvAttachmentList list;
    const zvString document =
        "<AttachmentList>\n<Attachment><FilePath>a</FilePath></Attachment>\n<Attachment/>\n"
        "<Attachment><FileTransferMode>ASCII</FileTransferMode></Attachment></AttachmentList>";
    EXPECT_TRUE(zvAttachmentParser(&m_findings).parse(&list, document, false).isOk());
    EXPECT_EQ(list.numAttachments(), 1);
    EXPECT_EQ(m_findings.lines, (Lines{"2:13 warning default-used attachment \"a\"|",
                                       "2:13 warning default-used attachment \"a\"|",
                                       "3:1 warning missing-path |", "4:1 warning missing-path |"}));
}

TEST_F(zvCfgFindingsTest, ADocumentThatCannotBeWrittenSaysWhy) {
    zvXMLParser parser(&m_findings);
    EXPECT_FALSE(parser.writeTreeToFile("x.xml", "UTF-8"));
    EXPECT_TRUE(parser.createXMLTree("a"));
    EXPECT_FALSE(parser.writeTreeToFile("no such folder\\x.xml", "UTF-8"));
    EXPECT_EQ(m_findings.texts,
              (Lines{"The document cannot be written: there is none",
                     "The data cannot be written to the given location \"no such folder\""}));
    EXPECT_EQ(m_findings.lines, Lines(2, "0:0 error not-written |"));
}

}  // namespace
