#include "zvCfgView.h"

#include "zvCfgViewList.h"
#include "zvConfigurationTestSupport.h"

namespace {

using zvCfgViewTest = zvConfigurationTest;

TEST_F(zvCfgViewTest, ViewsAreRefusedByNameAndStayFoundByTheRest) {
    struct Case {
        const char* network;
        const char* local;
        const char* remote;
        Lines errors;
    };
    const char byRemote[] = "View cannot be added to Remote name based map";
    const char byLocal[] = "View cannot be added to Local name based map";
    const char byNetwork[] = "View cannot be added to ViewNetwork";
    const Case cases[] = {
        {"E", "l", "r", {}},
        {"E", "l", "r2", {byLocal}},
        {"E", "l3", "r", {byRemote}},
        {"", "l4", "r4", {byNetwork}},
        {"", "", "", {byRemote, byLocal, byNetwork}},
    };
    int deleted = 0;
    for (const Case& c : cases) {
        zvRecordingLogger::reset();
        auto* const view = new Counted<zvCfgView>(deleted);
        view->setNetworkName(c.network);
        view->setLocalName(c.local);
        view->setRemoteName(c.remote);
        EXPECT_EQ(manager().addView(view), c.errors.empty());
        EXPECT_EQ(zvRecordingLogger::lines("error"), c.errors);
    }
    EXPECT_FALSE(manager().addView(nullptr));
    EXPECT_EQ(manager().getViewByLocalName("l")->getRemoteName(), "r") << "the first keeps its name";
    EXPECT_EQ(manager().getViewByRemoteName("r")->getLocalName(), "l");
    EXPECT_EQ(manager().getViewByRemoteName("r2")->getLocalName(), "l");
    EXPECT_EQ(manager().getViewByLocalName("l4")->getRemoteName(), "r4");
    EXPECT_EQ(manager().getViewsInCollection("E")->size(), 3);
    EXPECT_EQ(manager().numViewCollections(), 1);
    EXPECT_EQ(deleted, 0);
    zvCfgConfigManager::destroyCfgConfigManager();
    EXPECT_EQ(deleted, 5);
}

TEST_F(zvCfgViewTest, CollectionsAreIndexedInKeyOrder) {
    for (const char* const name : {"m", "z", "a", "z", "B"}) {
        auto* const view = new zvCfgView;
        view->setNetworkName(name);
        manager().addView(view);
    }
    Lines names;
    for (int i = 0; i < manager().numViewCollections(); ++i) {
        names.push_back(narrow(manager().getViewCollectionAt(i)));
    }
    EXPECT_EQ(names, (Lines{"B", "a", "m", "z"}));
    EXPECT_TRUE(manager().getViewCollectionAt(-1).empty() && manager().getViewCollectionAt(4).empty());
}

TEST_F(zvCfgViewTest, TheSectionIsReadUpToTheFirstError) {
    const zvResult result = parse(
        "<ViewConfig><ViewCollection Name='E'><View LocalName='a' RemoteName='A'/><Other/>"
        "<View LocalName='b' RemoteName='A'/><View Index='1' LocalName='c' RemoteName='C'/></ViewCollection>"
        "<ViewCollection><View LocalName='d' RemoteName='D'/></ViewCollection></ViewConfig>"
        "<ObjectConfig><Object LocalCustType='never'/></ObjectConfig>");
    EXPECT_EQ(result.getResult(), 6);
    EXPECT_EQ(result.getMessage(), "Error occured while parsing \"ViewConfig\" node!");
    const Lines expected = {"View cannot be added to Remote name based map",
                            "Error occured while adding View : b of ViewCollection : E",
                            "Name not found for ViewCollection",
                            "Error occured while parsing \"ViewConfig\" node!"};
    EXPECT_EQ(zvRecordingLogger::lines("error"), expected);
    const zvCfgViewList& views = *manager().getViewsInCollection("E");
    ASSERT_EQ(views.size(), 3);
    EXPECT_EQ(views.get(1)->getIndex(), 1) << "without an index the place stands for it";
    EXPECT_EQ(views.get(3), nullptr);
    EXPECT_EQ(manager().getDefaultViewInCollection("E")->getLocalName(), "a");
    EXPECT_EQ(manager().getDefaultViewInCollection(""), nullptr);
    EXPECT_EQ(manager().numObjects(), 0) << "later sections are not read";
}

}  // namespace
