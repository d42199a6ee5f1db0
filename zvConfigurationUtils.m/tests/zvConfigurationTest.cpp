#include <memory>
#include <utility>

#include "zvCfgAttribute.h"
#include "zvCfgFile.h"
#include "zvCfgFileExtension.h"
#include "zvCfgFileList.h"
#include "zvCfgObject.h"
#include "zvCfgObjectList.h"
#include "zvCfgTransition.h"
#include "zvCfgView.h"
#include "zvCfgViewList.h"
#include "zvConfigurationTestSupport.h"

namespace {

zvCfgAttribute* attribute(const char* key, const char* local, const char* remote, const char* fallback = "") {
    auto* const made = new zvCfgAttribute;
    made->setKeyName(key);
    made->setLocalName(local);
    made->setRemoteName(remote);
    made->setDefaultValue(fallback);
    return made;
}

TEST_F(zvConfigurationTest, TheSampleHasNoErrors) {
    zvCfgMgrXmlParser parser;
    EXPECT_TRUE(parser.parse(ZV_SAMPLE_CONFIGURATION, true).isOk());
    EXPECT_EQ(zvRecordingLogger::lines("warn"), Lines{});
    EXPECT_EQ(zvRecordingLogger::lines("error"), Lines{});
    EXPECT_EQ(parser.getPdmSystemName(), "Remote PDM");
    EXPECT_EQ(manager().numObjects(), 11);
    EXPECT_EQ(manager().getObjectsByLocalType("Part")->size(), 2);
    EXPECT_TRUE(manager().isFileAllowedForExport("PDF"));
    EXPECT_FALSE(manager().isFileAllowedForImport("pdf"));
    EXPECT_EQ(ways("In Work", "RELEASED", "Part", ""), Lines{"INWORK>FROZEN>RELEASED"});
    EXPECT_EQ(manager().getDefaultViewInCollection("Engineering")->getLocalName(), "Design");
}

TEST_F(zvConfigurationTest, AnObjectIndexesItsAttributes) {
    zvCfgObject object;
    object.setLocalCustomType("T");
    EXPECT_TRUE(object.addAttribute(attribute("k2", "l2", "r2", "d")));
    EXPECT_TRUE(object.addAttribute(attribute("k1", "", "")));
    EXPECT_TRUE(object.addAttribute(attribute("", "l3", "")));
    EXPECT_TRUE(object.addAttribute(attribute("k4", "l2", "r4"))) << "the last name tried was free";
    EXPECT_FALSE(object.addAttribute(attribute("", "l5", "r2")));
    EXPECT_FALSE(object.addAttribute(attribute("k1", "l6", "")));
    EXPECT_FALSE(object.addAttribute(attribute("", "", "", "d")));
    EXPECT_FALSE(object.addAttribute(nullptr));
    const Lines expected = {
        "warn: Attribute with Local Name : l2 cannot be added to the object of local custom type : T",
        "warn: Attribute with Remote name : r2 cannot be added to the object with local custom type : T",
        "warn: Attribute with Key : k1 cannot be added to the object of local custom type : T",
        "warn: The attribute doesn't have any RemoteName or LocalName or Key!",
        "error: NULL pointer passed to function \"zvCfgObject::addAttribute\""};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
    EXPECT_EQ(object.getAttributeByLocalName("l2")->getKeyName(), "k2");
    EXPECT_EQ(object.getAttributeByKey("k4")->getRemoteName(), "r4");
    EXPECT_EQ(object.getKeyAttribute(0)->getKeyName(), "k1");
    EXPECT_EQ(object.numKeyAttributes(), 3);
    EXPECT_EQ(object.numNonKeyAttributes(), 2);
    EXPECT_EQ(object.getNonKeyAttribute(1)->getLocalName(), "l5");
    EXPECT_EQ(object.numDefaultAttributes(), 1);
    EXPECT_EQ(object.getNonKeyAttribute(-1), nullptr);
    EXPECT_EQ(object.getNonKeyAttribute(2), nullptr);
    EXPECT_EQ(object.getAttributeByKey(""), nullptr);
}

TEST_F(zvConfigurationTest, AnIndexKeepsTheNamesThatAttributesHadWhenTheyWereAdded) {
    zvCfgObject object;
    zvCfgAttribute* const renamed = attribute("k", "b", "r");
    EXPECT_TRUE(object.addAttribute(attribute("", "a", "")) && object.addAttribute(renamed));
    renamed->setLocalName("z");
    renamed->setKeyName("");
    EXPECT_TRUE(object.addAttribute(attribute("", "c", "")));
    EXPECT_EQ(object.getAttributeByLocalName("b"), renamed);
    EXPECT_EQ(object.getAttributeByLocalName("z"), nullptr);
    EXPECT_EQ(object.getAttributeByKey("k")->getLocalName(), "z");
    EXPECT_FALSE(renamed->isKeyAttribute());
    const zvCfgAttribute copy(*renamed);
    renamed->setRemoteName("other");
    EXPECT_EQ(copy.getRemoteName(), "r");
}

// More than an index keeps in a list.
TEST_F(zvConfigurationTest, AnObjectWithManyAttributesFindsEachOfThem) {
    constexpr int count = 200;
    const auto name = [](int i) { return "n" + std::to_string(i * 7 % count + count); };
    zvCfgObject object;
    for (int i = 0; i < count; ++i) {
        EXPECT_TRUE(object.addAttribute(attribute(name(i).c_str(), name(i).c_str(), "")));
        EXPECT_FALSE(object.addAttribute(attribute(name(i / 2).c_str(), "", ""))) << i;
    }
    EXPECT_EQ(object.numKeyAttributes(), count);
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(object.getAttributeByLocalName(name(i).c_str())->getKeyName(), name(i).c_str());
        EXPECT_EQ(object.getKeyAttribute(i)->getKeyName(), ("n" + std::to_string(i + count)).c_str());
    }
    EXPECT_EQ(object.getAttributeByLocalName("n"), nullptr);
    EXPECT_EQ(object.getKeyAttribute(count), nullptr);
}

TEST_F(zvConfigurationTest, ObjectsOfATypeWithTheSameAttributesAreAGroup) {
    const auto object = [](const char* local, const char* remote, const char* attributes) {
        return std::string("<Object LocalCustType='") + local + "' RemoteCustType='" + remote + "'>" +
               attributes + "</Object>";
    };
    const char* const two =
        "<Attribute LocalName='a' RemoteName='r'/><Attribute LocalName='b' DataType='Float'/>";
    ASSERT_TRUE(
        parseObjects(object("Part", "1", two) + object("Part", "2", two) + object("Other", "2", two) +
                     object("Part", "3", "<Attribute LocalName='a' RemoteName='r'/>") +
                     object("Part", "3", "<Attribute LocalName='a' RemoteName='s'/>") +
                     object("Part", "3", "<Attribute LocalName='a' RemoteName='s' Key='k'/>") +
                     object("Part", "3", "<Attribute LocalName='a' RemoteName='s' DataType='Float'/>"))
            .isOk());
    std::vector<int> groups;
    groups.reserve(static_cast<std::size_t>(manager().numObjects()));
    for (int i = 0; i < manager().numObjects(); ++i) {
        groups.push_back(manager().getObjectAt(i)->getAttributeGroup());
    }
    EXPECT_EQ(groups, (std::vector<int>{1, 1, 1, 2, 3, 3, 4}));
    zvCfgObject* const changed = manager().getObjectsByLocalType("Part")->get(0);
    const zvNamePositions* const positions = changed->attributePositions();
    EXPECT_EQ(positions, manager().getObjectAt(2)->attributePositions());
    ASSERT_NE(positions, nullptr);
    EXPECT_EQ(positions->find("r"), 0);
    EXPECT_EQ(positions->find("b"), 1);
    EXPECT_EQ(manager().getObjectAt(3)->attributePositions(), nullptr);
    changed->addAttribute(attribute("", "c", ""));
    EXPECT_EQ(changed->getAttributeGroup(), 0);
    EXPECT_EQ(changed->attributePositions(), nullptr);
}

TEST_F(zvConfigurationTest, ObjectsAreFoundByTheirTypes) {
    ASSERT_TRUE(parseObjects("<Object LocalCustType='Part' RemoteCustType='X'/>"
                             "<Object LocalCustType='Part' RemoteCustType='r'/><Other/>")
                    .isOk());
    EXPECT_EQ(manager().getObjectsByLocalType("Part")->size(), 2);
    EXPECT_EQ(manager().getObjectsByLocalType("Part")->get(1)->getRemoteCustomType(), "r");
    EXPECT_EQ(manager().getObjects("Part", "r")->size(), 1);
    EXPECT_EQ(manager().getObjects("Pa", "rtX")->get(0)->getRemoteCustomType(), "X");
    EXPECT_EQ(manager().getObjectsByOOTBType("")->size(), 2);
    EXPECT_EQ(manager().getObjectsByRemoteType("x"), nullptr);
    EXPECT_TRUE(parseObjects("<Object LocalCustType='Part'/>").isOk()) << "a second parse adds";
    EXPECT_EQ(manager().getObjectsByLocalType("Part")->size(), 3);
    zvCfgConfigManager::destroyCfgConfigManager();
    EXPECT_EQ(manager().numObjects(), 0);
}

TEST_F(zvConfigurationTest, AttributesHaveTypesAndExtras) {
    ASSERT_TRUE(
        parseObjects("<Object LocalCustType='T'>"
                     "<Attribute LocalName='i' DataType='Integer' Unit='mm'/>"
                     "<Attribute LocalName='f' DataType='Float'/><Attribute LocalName='s'/>"
                     "<Attribute LocalName='d' DataType='Date'/><Attribute LocalName='b' DataType='Boolean'/>"
                     "<Attribute LocalName='r' DataType='Real'/>"
                     "<MappingRule>{i} = '1'</MappingRule><MappingRule/></Object>")
            .isOk());
    const zvCfgObject& object = *manager().getObjectAt(0);
    std::string types;
    for (int i = 0; i < object.numAttributes(); ++i) {
        types += std::to_string(object.getAttribute(i)->getDataType());
    }
    EXPECT_EQ(types, "123450");
    zvCfgAttribute copy(*object.getAttribute(0));
    EXPECT_EQ(copy.getOptionalAttribute("Unit"), "mm");
    EXPECT_FALSE(object.getMappingRule().IsNull());
}

TEST_F(zvConfigurationTest, FilesAreObjectsWithExtensions) {
    ASSERT_TRUE(parseObjects("<FileObject LocalCustType='F'><AllowedExtns>"
                             "<Extn Name='pdf' Import='true' Export='True' TransferMode='ascii'/>"
                             "<Extn Name='DWG' Import='True' TransferMode='ASCII'/><Extn Import='True'/>"
                             "<Extn Name='pdf' TransferMode='BINARY'/></AllowedExtns></FileObject>")
                    .isOk());
    EXPECT_EQ(manager().numObjects(), 1);
    const zvCfgFile& file = *manager().getFilesByLocalType("F")->getFile(0);
    EXPECT_EQ(&std::as_const(file), manager().getObjectAt(0));
    EXPECT_EQ(file.numAllowedFileExtensions(), 2);
    EXPECT_EQ(file.getFileExtension(0)->getName(), "DWG") << "in the order of the names";
    EXPECT_FALSE(manager().isFileAllowedForImport("pdf")) << "only True allows";
    EXPECT_TRUE(manager().isFileAllowedForExport("PDF") && manager().isFileAllowedForImport("dwg"));
    const Lines warnings = zvRecordingLogger::lines("warn");
    ASSERT_FALSE(warnings.empty());
    EXPECT_EQ(warnings[0], "Attribute \"TransferMode\" not provided with the Extn");
    const Lines errors = zvRecordingLogger::lines("error");
    ASSERT_GE(errors.size(), 2U);
    EXPECT_EQ(errors[0], "FileExtn Name not found for FileObject with LocalCustType : F");
}

// Attributes share their names with their copies, until one is given another.
TEST_F(zvConfigurationTest, CopiesOfPartsArePartsOfTheirOwn) {
    const std::unique_ptr<zvCfgAttribute> original(attribute("k", "l", "r", "d"));
    EXPECT_TRUE(original->addOptionalAttribute("extra", "1"));
    zvCfgAttribute assigned;
    EXPECT_TRUE(assigned.addOptionalAttribute("gone", "2"));
    assigned = *original;
    const zvCfgAttribute copy(*original);
    original->setLocalName("other");
    original->setKeyName("");
    original->setDefaultValue("");
    EXPECT_TRUE(original->addOptionalAttribute("later", "3"));
    for (const zvCfgAttribute* const other : {&copy, &std::as_const(assigned)}) {
        EXPECT_TRUE(other->isKeyAttribute() && other->isDefaultValueSpecified());
        EXPECT_EQ(other->getKeyName(), "k");
        EXPECT_EQ(other->getLocalName(), "l");
        EXPECT_EQ(other->getRemoteName(), "r");
        EXPECT_EQ(other->getOptionalAttribute("extra"), "1");
        EXPECT_TRUE(other->getOptionalAttribute("later").empty());
        EXPECT_TRUE(other->getOptionalAttribute("gone").empty());
    }
    EXPECT_EQ(original->sharedRemoteName(), copy.sharedRemoteName());

    zvCfgView view;
    view.setNetworkName("n");
    view.setLocalName("l");
    view.setRemoteName("r");
    view.setIndex(3);
    const zvCfgView sameView(view);
    zvCfgView nextView;
    nextView = view;
    view.setLocalName("other");
    for (const zvCfgView* const other : {&sameView, &std::as_const(nextView)}) {
        EXPECT_EQ(other->getNetworkName() + other->getLocalName() + other->getRemoteName(), "nlr");
        EXPECT_EQ(other->getIndex(), 3);
    }
    zvCfgTransition transition(zvCfgTransitionDemote, "DRAFT");
    const zvCfgTransition sameTransition(transition);
    transition = zvCfgTransition(zvCfgTransitionPromote, "FINAL");
    EXPECT_EQ(sameTransition.getType(), zvCfgTransitionDemote);
    EXPECT_EQ(sameTransition.getToState(), "DRAFT");
    EXPECT_EQ(transition.getType(), zvCfgTransitionPromote);
    EXPECT_EQ(transition.getToState(), "FINAL");
}

// A copy of a list keeps its length when the list grows, and has the same part: it is the manager's.
template <class List, class Part>
void expectCopies(void (List::*add)(Part*), Part* (List::*get)(int) const) {
    Part part;
    List list;
    (list.*add)(&part);
    const List copy(list);
    List assigned;
    assigned = list;
    (list.*add)(nullptr);
    for (const List* const other : {&copy, &std::as_const(assigned)}) {
        EXPECT_EQ(other->size(), 1);
        EXPECT_EQ((other->*get)(0), &part);
    }
}

TEST_F(zvConfigurationTest, CopiesOfListsHaveTheSameParts) {
    expectCopies(&zvCfgObjectList::add, &zvCfgObjectList::get);
    expectCopies(&zvCfgFileList::addFile, &zvCfgFileList::getFile);
    expectCopies(&zvCfgViewList::add, &zvCfgViewList::get);

    zvCfgLcmState from;
    zvCfgLcmState to;
    const zvCfgTransition transition(zvCfgTransitionPromote, "TO");
    zvCfgTransitionPath path(&from);
    const zvCfgTransitionPath empty(path);
    path.add(&transition, &to);
    zvCfgTransitionPathList paths;
    paths.add(path);
    const zvCfgTransitionPathList samePaths(paths);
    zvCfgTransitionPathList nextPaths;
    nextPaths = paths;
    paths.clear();
    path = empty;
    EXPECT_TRUE(path.size() == 0 && path.getStateAt(0) == &from && path.getStateAt(1) == nullptr);
    for (const zvCfgTransitionPathList* const other : {&samePaths, &std::as_const(nextPaths)}) {
        ASSERT_EQ(other->size(), 1);
        EXPECT_EQ(other->get(0)->getStateAt(1), &to);
        EXPECT_EQ(other->get(0)->getTransitionAt(0), &transition);
        EXPECT_EQ(other->get(1), nullptr);
    }
}

TEST_F(zvConfigurationTest, EveryFailureHasItsCode) {
    struct Case {
        std::string source;
        int code;
        std::string error;
    };
    const Case cases[] = {
        {"no xml at all", 1, "Configuration file : \"no xml at all\" not found!"},
        {"<CustomizationConfig> </CustomizationConfig>", 2,
         "Empty Configuration file :<CustomizationConfig> </CustomizationConfig>"},
        {"<Other><ObjectConfig/></Other>", 3, "Wrong Configuration file :<Other><ObjectConfig/></Other>"},
        {"<CustomizationConfig><LifecycleConfig><Lifecycle/></LifecycleConfig></CustomizationConfig>", 5,
         "Error occured while parsing \"LifecycleConfig\" node!"},
        {"<CustomizationConfig><Unknown/></CustomizationConfig>", 0, ""}};
    for (const Case& c : cases) {
        zvRecordingLogger::reset();
        EXPECT_EQ(zvCfgMgrXmlParser().parse(c.source.c_str(), false).getResult(), c.code) << c.source;
        const Lines errors = zvRecordingLogger::lines("error");
        EXPECT_EQ(errors.empty() ? "" : errors.back(), c.error);
        EXPECT_EQ(zvRecordingLogger::lines("info").back(), c.code == 0
                                                               ? "Configuration file parsing succeeded"
                                                               : "Configuration file parsing failed!");
    }
}

TEST_F(zvConfigurationTest, AnInvalidRuleEndsTheParse) {
    const zvResult result = parseObjects(
        "<Object LocalCustType='kept'/><Object LocalCustType='lost'>"
        "<Attribute LocalName='a'/><MappingRule>{a} = </MappingRule></Object>"
        "<Object LocalCustType='never'/>");
    EXPECT_EQ(result.getResult(), -1);
    EXPECT_EQ(result.getMessage(), "Invalid condition string, check the usage of operators");
    EXPECT_NE(manager().getObjectsByLocalType("kept"), nullptr);
    EXPECT_EQ(manager().getObjectsByLocalType("never"), nullptr);
}

TEST_F(zvConfigurationTest, LifecyclesHavePaths) {
    ASSERT_TRUE(
        parse("<LifecycleConfig><Lifecycle ObjectType='T'><LifecycleGraph>"
              "<LcmState Index='0' Name='A' Key='a'><OutgoingTransition Type='Promote' ToState='B'/>"
              "<OutgoingTransition Type='Promote' ToState='C'/>"
              "<OutgoingTransition Type='Promote' ToState='nowhere'/>"
              "<OutgoingTransition Type='Sideways' ToState='B'/></LcmState>"
              "<LcmState Index='1' Name='B'><OutgoingTransition Type='Promote' ToState='C'/>"
              "<OutgoingTransition Type='Demote' ToState='A'/></LcmState>"
              "<LcmState Index='2' Name='C'/><LcmState Index='3'/></LifecycleGraph>"
              "<LifecycleStateMap><MapEntry LocalName='B' RemoteName='Bee'/>"
              "<MapEntry LocalName='Z' RemoteName='Zed'/></LifecycleStateMap></Lifecycle></LifecycleConfig>")
            .isOk());
    EXPECT_EQ(zvRecordingLogger::lines("error").size(), 4U) << "each is left out with an error";
    EXPECT_EQ(ways("A", "C", "T", ""), (Lines{"A>C", "A>B>C"}));
    EXPECT_EQ(ways("Bee", "A", "T", "Demote"), Lines{"B>A"});
    EXPECT_EQ(ways("B", "A", "T", "Promote"), Lines{});
    EXPECT_EQ(ways("B", "B", "T", ""), Lines{"B"});
    EXPECT_EQ(ways("A", "C", "unknown", ""), Lines{});
    EXPECT_EQ(manager().getLcmStateByKey("a", "T")->getLocalName(), "A");
    EXPECT_EQ(manager().getLcmStateByRemoteName("Bee", "T")->getIndex(), 1);
    EXPECT_EQ(manager().getLcmStateIndex("C", "T"), 2);
    EXPECT_EQ(manager().getLcmStateIndex("C", "unknown"), -1);
    EXPECT_FALSE(manager().addLcmState(nullptr, "T"));
    EXPECT_FALSE(manager().addLcmStateByRemoteName("T", "A", "Bee"));
    EXPECT_FALSE(manager().addLcmStateByRemoteName("T", "A", ""));
}

// A complete graph has too many paths to enumerate.
TEST_F(zvConfigurationTest, ThePathsOfADenseLifecycleAreLimited) {
    constexpr int states = 40;
    std::string graph;
    for (int from = 0; from < states; ++from) {
        graph += "<LcmState Index='" + std::to_string(from) + "' Name='S" + std::to_string(from) + "'>";
        for (int to = 0; to < states; ++to) {
            graph += "<OutgoingTransition Type='Promote' ToState='S" + std::to_string(to) + "'/>";
        }
        graph += "</LcmState>";
    }
    ASSERT_TRUE(parse("<LifecycleConfig><Lifecycle ObjectType='T'><LifecycleGraph>" + graph +
                      "<LcmState Index='99' Name='apart'/></LifecycleGraph></Lifecycle></LifecycleConfig>")
                    .isOk());
    const Lines found = ways("S0", "S1", "T", "");
    EXPECT_EQ(found.size(), 1000U);
    EXPECT_EQ(found.front(), "S0>S1");
    EXPECT_EQ(zvRecordingLogger::lines("warn").size(), 1U);
    EXPECT_EQ(ways("S0", "apart", "T", ""), Lines{});
}

TEST_F(zvConfigurationTest, ViewsAreInCollections) {
    EXPECT_TRUE(parse("<ViewConfig><ViewCollection Name='E'>"
                      "<View Index='2' LocalName='late' RemoteName='Late'/>"
                      "<View Index='1' LocalName='early' RemoteName='Early'/></ViewCollection>"
                      "<ViewCollection Name='S'><View Index='0' LocalName='early' RemoteName='Other'/>"
                      "</ViewCollection></ViewConfig>")
                    .isOk());
    EXPECT_EQ(manager().numViewCollections(), 2);
    EXPECT_EQ(manager().getViewCollectionAt(0), "E");
    EXPECT_TRUE(manager().getViewCollectionAt(2).empty());
    EXPECT_EQ(manager().getViewsInCollection("E")->size(), 2);
    EXPECT_EQ(manager().getDefaultViewInCollection("E")->getLocalName(), "early");
    EXPECT_EQ(manager().getViewByRemoteName("Early"), manager().getViewByLocalName("early"));
    EXPECT_EQ(manager().getViewsInCollection("none"), nullptr);
    EXPECT_EQ(zvRecordingLogger::lines("error").front(), "View cannot be added to Local name based map");
}

}  // namespace
