#include "zvCfgObjectXmlParser.h"

#include "zvCfgFile.h"
#include "zvCfgFileList.h"
#include "zvCfgObjectList.h"
#include "zvCndParsingUtils.h"
#include "zvConfigurationTestSupport.h"

namespace {

using zvCfgObjectXmlParserTest = zvConfigurationTest;

// The messages about the configuration, without debug messages and those of conditions.
Lines complaints() {
    Lines all;
    for (const std::string& line : zvRecordingLogger::lines()) {
        if (line.compare(0, 5, "warn:") == 0 || line.compare(0, 6, "error:") == 0) {
            all.push_back(line);
        }
    }
    return all;
}

TEST_F(zvCfgObjectXmlParserTest, ErrorsAreLoggedAndSkipped) {
    struct Case {
        std::string content;
        Lines complaints;
    };
    const auto object = [](const std::string& children) {
        return "<Object LocalCustType='T'>" + children + "</Object>";
    };
    const auto extensions = [](const std::string& children) {
        return "<FileObject LocalCustType='F'><AllowedExtns>" + children + "</AllowedExtns></FileObject>";
    };
    const std::string withoutMode = "warn: Attribute \"TransferMode\" not provided with the Extn";
    const Case cases[] = {
        {"", {"error: Neither : Object nor FileObject found inside the ObjectConfig node!"}},
        {"<Other/>", {}},
        {object("<Other/><Attribute LocalName='a'><Attribute LocalName='a'/></Attribute>"), {}},
        {object("<Attribute DataType='Float'/>"),
         {"warn: The attribute doesn't have any RemoteName or LocalName or Key!",
          "error: Attribute  of Object with LocalCustType : T cannot be added"}},
        {object("<Attribute/>"),
         {"error: Error occured while parsing attribute of Object with LocalCustType : T"}},
        {object("<Attribute LocalName='a'/><Attribute LocalName='a'/>"),
         {"warn: Attribute with Local Name : a cannot be added to the object of local custom type : T",
          "error: Attribute a of Object with LocalCustType : T cannot be added"}},
        {object("<Attribute RemoteName='a'/><Attribute RemoteName='a' Key='k'/>"),
         {"warn: Attribute with Remote name : a cannot be added to the object with local custom type : T"}},
        {extensions(""),
         {"error: Error occured while parsing FileExtension of file Object with LocalCustType : F",
          "error: Error occured while parsing Allowed File Extensions"}},
        {extensions("<Extn Name='a' TransferMode='ASCII'/><Extn Name='a' TransferMode='ASCII'/>"),
         {"error: Error occured while adding file extension : a of FileObject with LocalCustType F"}},
        {extensions("<Extn Name='' TransferMode='BINARY'/>"),
         {"error: Error occured while adding file extension :  of FileObject with LocalCustType F"}},
        {extensions("<Extn Import='True'/>"),
         {withoutMode, "error: FileExtn Name not found for FileObject with LocalCustType : F"}},
        {extensions("<Extn/>"),
         {"error: Error occured while parsing attributes of \"Extn", withoutMode,
          "error: FileExtn Name not found for FileObject with LocalCustType : F"}},
        {extensions("<Extn Name='a' TransferMode='Ascii'/>"), {withoutMode}},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(parseObjects(c.content).isOk());
        EXPECT_EQ(complaints(), c.complaints) << c.content;
    }
}

TEST_F(zvCfgObjectXmlParserTest, TheSectionNeedsAnElement) {
    zvXMLParser empty;
    EXPECT_EQ(zvCfgObjectXmlParser().parseObjectConfig(empty).getResult(), -1);
    EXPECT_EQ(complaints(), Lines{"error: Error occured while parsing : ObjectConfig node!"});
}

TEST_F(zvCfgObjectXmlParserTest, AttributesComeBeforeRulesAndRulesBeforeExtensions) {
    ASSERT_TRUE(parseObjects("<FileObject LocalCustType='F'>"
                             "<AllowedExtns><Extn Name='e'/></AllowedExtns>"
                             "<MappingRule>{a} = '1'</MappingRule>"
                             "<MappingRule> {b}<!-- at most --> &lt;= <![CDATA['2']]></MappingRule>"
                             "<MappingRule> </MappingRule>"
                             "<Attribute DataType='Date'/></FileObject>")
                    .isOk());
    const Lines expected = {"debug: Inside function zvCfgMgrXmlParser::parse",
                            "debug: Inside function zvCfgObjectXmlParser::parseObjectConfig",
                            "debug: Inside function zvCfgObjectXmlParser::parseFileObject",
                            "warn: The attribute doesn't have any RemoteName or LocalName or Key!",
                            "error: Attribute  of Object with LocalCustType : F cannot be added",
                            "info: zvCndParsingUtils::createConditionStructure - {a} = '1'",
                            "info: zvCndParsingUtils::createConditionStructure -  {b} <= '2'",
                            "debug: Inside function zvCfgObjectXmlParser::parseFileExtensions",
                            "warn: Attribute \"TransferMode\" not provided with the Extn",
                            "info: Configuration file parsing succeeded"};
    Lines found;
    for (const std::string& line : zvRecordingLogger::lines()) {
        if (line.find("DOM") == std::string::npos) {
            found.push_back(line);
        }
    }
    EXPECT_EQ(found, expected);
    EXPECT_EQ(manager().getObjectAt(0)->getMappingRuleText(), " {b} <= '2'");
    EXPECT_EQ(zvCndParsingUtils::createConditionString(manager().getObjectAt(0)->getMappingRule()),
              "{b} <= '2'")
        << "the last rule with a text counts";
}

TEST_F(zvCfgObjectXmlParserTest, ARuleIsAllCharacterDataOfItsElement) {
    const std::string rules[] = {"{a} = '1' OR {b} = '2'",
                                 "<![CDATA[{a} = '1' OR {b} = '2']]>",
                                 "{a} = <!-- x -->'1' OR {b} = '2'",
                                 "<!-- x -->{a} = '1<?x?>' OR {b} = '2'",
                                 "{a} = '1' <![CDATA[OR]]> {b}<![CDATA[ = '2']]>",
                                 "{a} = '&#49;' OR <x> {c} = '3' AND </x>{b} = '2'"};
    for (const std::string& rule : rules) {
        zvCfgConfigManager::destroyCfgConfigManager();
        ASSERT_TRUE(parseObjects("<Object><MappingRule>" + rule + "</MappingRule></Object>").isOk()) << rule;
        EXPECT_EQ(zvCndParsingUtils::createConditionString(manager().getObjectAt(0)->getMappingRule()),
                  " ( {b} = '2' ) OR ( {a} = '1' ) ")
            << rule;
    }
}

TEST_F(zvCfgObjectXmlParserTest, ValuesAreTakenAsTheyAre) {
    ASSERT_TRUE(parseObjects(
                    "<Object OOTBType=' O ' LocalCustType='a&amp;b' RemoteCustType='&#x4E2D;&#x1F600;' X='1'>"
                    "<Attribute Key='' LocalName=' ' RemoteName='r' DefaultValue='&lt;&quot;' DataType=''"
                    " localname='x' Unit='' Note='n &#10;'/></Object>"
                    "<FileObject><AllowedExtns><Extn Name='e' Import='True ' Export='True'"
                    " TransferMode='ASCII' Other='x'/></AllowedExtns></FileObject>")
                    .isOk());
    const zvCfgObject& object = *manager().getObjectsByOOTBType(" O ")->get(0);
    EXPECT_EQ(object.getLocalCustomType(), "a&b");
    EXPECT_EQ(object.getRemoteCustomType(), zvString(u"\u4E2D\U0001F600"));
    EXPECT_TRUE(object.getMappingRule().IsNull());
    const zvCfgAttribute& attribute = *object.getAttributeByLocalName(" ");
    EXPECT_FALSE(attribute.isKeyAttribute());
    EXPECT_EQ(attribute.getDefaultValue(), "<\"");
    EXPECT_EQ(attribute.getDataType(), zvDataTypeNone) << "no word of the five";
    Lines extras;
    attribute.optionalAttributes().forEach([&extras](const zvString& name, const zvString& value) {
        extras.push_back(narrow(name) + "=" + narrow(value));
    });
    EXPECT_EQ(extras, (Lines{"Note=n \n", "Unit=", "localname=x"}));
    const zvCfgFileExtension& extension = *manager().getFileAt(0)->getFileExtension("e");
    EXPECT_FALSE(extension.isImportAllowed());
    EXPECT_TRUE(extension.isExportAllowed());
    EXPECT_EQ(extension.getTransferMode(), zvTransferModeAscii);
}

TEST_F(zvCfgObjectXmlParserTest, AnInvalidRuleKeepsEverythingBeforeIt) {
    const std::string sections =
        "<ObjectConfig><FileObject LocalCustType='kept'><AllowedExtns><Extn Name='e' "
        "Export='True'/></AllowedExtns>"
        "</FileObject></ObjectConfig>"
        "<ObjectConfig><FileObject LocalCustType='lost'><Attribute LocalName='a' Extra='x'/>"
        "<MappingRule>{a} = '1'</MappingRule><MappingRule>{a} == '1'</MappingRule>"
        "<AllowedExtns><Extn Name='f' Export='True'/></AllowedExtns></FileObject></ObjectConfig>"
        "<ViewConfig><ViewCollection Name='never'><View LocalName='l' "
        "RemoteName='r'/></ViewCollection></ViewConfig>";
    const zvResult result = parse(sections);
    EXPECT_EQ(result.getResult(), -1);
    EXPECT_EQ(result.getMessage(), "Valid condition operator not found");
    EXPECT_EQ(manager().numFiles(), 1);
    EXPECT_EQ(manager().numObjects(), 1);
    EXPECT_EQ(manager().getFilesByLocalType("lost"), nullptr);
    EXPECT_EQ(manager().numViewCollections(), 0);
    const Lines errors = zvRecordingLogger::lines("error");
    ASSERT_EQ(errors.size(), 2U);
    EXPECT_EQ(errors[0], "Valid condition operator not found");
    EXPECT_EQ(errors[1].find("Exception (-1 , Valid condition operator not found) caught at Line ("), 0U);
    EXPECT_NE(errors[1].find("), File(zvConfigurationUtils.m/src/zvCfgMgrXmlParser)"), std::string::npos);
    EXPECT_EQ(zvRecordingLogger::lines("info").back(), "Configuration file parsing failed!");
    EXPECT_EQ(parse(sections).getResult(), -1);
    EXPECT_EQ(manager().getFilesByLocalType("kept")->size(), 2) << "a second parse adds to the first";
    EXPECT_EQ(manager().getExportableFileTypes()->numStrings(), 2);
}

TEST_F(zvCfgObjectXmlParserTest, FilesAreNamedWhenTheyCannotBeRead) {
    struct Case {
        const char* content;
        int code;
        const char* before;
        const char* behind;
    };
    const Case cases[] = {
        {nullptr, 1, "Configuration file : \"", "\" not found!"},
        {"", 1, "Configuration file : \"", "\" not found!"},
        {"<CustomizationConfig PdmSystemName='P'/>", 2, "Empty Configuration file :", ""},
        {"<customizationConfig><ObjectConfig/></customizationConfig>", 3, "Wrong Configuration file :", ""},
    };
    for (const Case& c : cases) {
        const std::string path =
            c.content == nullptr ? m_folder.file("missing.xml") : m_folder.write("config.xml", c.content);
        const zvResult result = zvCfgMgrXmlParser().parse(path.c_str(), true);
        EXPECT_EQ(result.getResult(), c.code);
        EXPECT_EQ(result.getMessage(), (c.before + path + c.behind).c_str());
        EXPECT_EQ(zvRecordingLogger::lines("error").back(), c.before + path + c.behind);
    }
}

// Gives programs the step that reads the system's name.
class NameReader : public zvCfgMgrXmlParser {
public:
    using zvCfgMgrXmlParser::parsePdmSystemName;
};

TEST_F(zvCfgObjectXmlParserTest, TheSystemNameIsThatOfTheLastParse) {
    EXPECT_TRUE(NameReader().parsePdmSystemName().empty()) << "no document";
    zvCfgMgrXmlParser parser;
    EXPECT_TRUE(
        parser.parse("<CustomizationConfig PdmSystemName='P'><X/></CustomizationConfig>", false).isOk());
    EXPECT_EQ(parser.getPdmSystemName(), "P");
    EXPECT_FALSE(parser.parse("<CustomizationConfig PdmSystemName='Q'/>", false).isOk());
    EXPECT_EQ(parser.getPdmSystemName(), "Q") << "it is read before the sections";
    EXPECT_TRUE(parser.parse("<CustomizationConfig><X/></CustomizationConfig>", false).isOk());
    EXPECT_TRUE(parser.getPdmSystemName().empty());
}

}  // namespace
