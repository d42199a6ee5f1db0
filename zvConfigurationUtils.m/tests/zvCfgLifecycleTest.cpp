#include "zvCfgTransition.h"
#include "zvConfigurationTestSupport.h"

namespace {

using zvCfgLifecycleTest = zvConfigurationTest;

zvCfgLcmState* state(int index, const char* name, const char* key = "", const char* remoteName = "") {
    auto* const made = new zvCfgLcmState;
    made->setIndex(index);
    made->setLocalName(name);
    made->setKey(key);
    made->setRemoteName(remoteName);
    return made;
}

std::string stateElement(const std::string& name, const std::string& transitions = "") {
    return "<LcmState Name='" + name + "'>" + transitions + "</LcmState>";
}

std::string promoteTo(const std::string& name) {
    return "<OutgoingTransition Type='Promote' ToState='" + name + "'/>";
}

TEST_F(zvCfgLifecycleTest, ErrorsAreLoggedAndSkipped) {
    struct Case {
        std::string content;
        Lines errors;
        int states;
    };
    const std::string a = stateElement("A");
    const auto graph = [](const std::string& states) {
        return "<LifecycleGraph>" + states + "</LifecycleGraph>";
    };
    const auto map = [](const std::string& entry) {
        return "<LifecycleStateMap><MapEntry " + entry + "/></LifecycleStateMap>";
    };
    const std::string type = " of Lifecycle with ObjectType : T";
    const Case cases[] = {
        {graph("<LcmState Index='1'/><Other Name='X'/>" + a), {"Name not found for LcmState" + type}, 1},
        {graph(stateElement("A", "<OutgoingTransition Type='promote' ToState='A'/>")),
         {"Unknown Type : \"promote\" of OutgoingTransition from LcmState : A to LcmState : A" + type},
         1},
        {graph(stateElement("A", promoteTo("B"))),
         {"OutgoingTransition from LcmState : A to unknown LcmState : B" + type},
         1},
        {graph(a) + map("LocalName='B' RemoteName='Bee'"),
         {"MapEntry with RemoteName : Bee for unknown LcmState : B" + type},
         1},
        {graph(a) + map("LocalName='A'"),
         {"Error occured while adding RemoteName :  of LcmState : A" + type},
         1},
        {graph(a + "<LcmState Index='0' Name='B'/>"),
         {"Failed to add LcmState in Indexed LcmState Map", "Error occured while adding LcmState : B" + type},
         2},
        {graph(a + a),
         {"Failed to add LcmState in LocalName based map", "Failed to add LcmState in Key based map",
          "Error occured while adding LcmState : A" + type},
         2},
        {map("LocalName='A' RemoteName='Ay'") + graph(stateElement("A", promoteTo("B")) + stateElement("B")),
         {},
         2},
        {"<Other/>", {}, 0},
    };
    for (const Case& c : cases) {
        EXPECT_TRUE(parseLifecycle(c.content).isOk());
        EXPECT_EQ(zvRecordingLogger::lines("error"), c.errors) << c.content;
        const zvCfgLcmGraph* const lifecycle = manager().getLifecycle("T");
        EXPECT_EQ(lifecycle == nullptr ? 0 : lifecycle->numStates(), c.states) << c.content;
        zvCfgConfigManager::destroyCfgConfigManager();
    }
}

TEST_F(zvCfgLifecycleTest, AStateIsFoundByUniqueNames) {
    EXPECT_TRUE(manager().addLcmState(state(7, "A", "k", "Ay"), "T"));
    EXPECT_TRUE(manager().addLcmState(state(8, "B"), "T"));
    zvRecordingLogger::reset();
    EXPECT_FALSE(manager().addLcmState(state(7, "C", "k", "Ay"), "T"));
    EXPECT_FALSE(manager().addLcmState(state(9, ""), "T"));
    const Lines expected = {"error: Failed to add LcmState in Indexed LcmState Map",
                            "error: Failed to add LcmState in Key based map",
                            "error: Failed to add LcmState in RemoteName based map",
                            "error: Failed to add LcmState in LocalName based map",
                            "error: Failed to add LcmState in Key based map"};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
    EXPECT_EQ(manager().getLcmStateByKey("k", "T")->getLocalName(), "A");
    EXPECT_EQ(manager().getLcmStateByKey("B", "T")->getIndex(), 8) << "without a key the name stands for it";
    EXPECT_EQ(manager().getLcmStateByRemoteName("Ay", "T")->getLocalName(), "A");
    EXPECT_EQ(manager().getLcmStateByLocalName("C", "T")->getIndex(), 7);
    EXPECT_EQ(manager().getLcmStateByLocalName("C", "t"), nullptr);
    EXPECT_EQ(manager().getLcmStateIndex("Ay", "T"), 7);
    EXPECT_EQ(manager().getLcmStateIndex("k", "T"), -1) << "a key is no name";
    EXPECT_TRUE(manager().addLcmStateByRemoteName("T", "A", "Also"));
    EXPECT_EQ(manager().getLcmStateByRemoteName("Also", "T")->getRemoteName(), "Ay");
    EXPECT_TRUE(manager().addLcmStateByRemoteName("T", "B", "Bee"));
    EXPECT_EQ(manager().getLcmStateByLocalName("B", "T")->getRemoteName(), "Bee");
    EXPECT_FALSE(manager().addLcmStateByRemoteName("t", "A", "x"));
    EXPECT_FALSE(manager().addLcmStateByRemoteName("T", "unknown", "x"));
}

TEST_F(zvCfgLifecycleTest, LifecyclesCanBeIterated) {
    ASSERT_TRUE(parse("<LifecycleConfig><Lifecycle ObjectType='Z'><LifecycleGraph>" +
                      stateElement("Y", promoteTo("X") + "<OutgoingTransition Type='Demote' ToState='X'/>") +
                      "<LcmState Index='-5' Name='X'/></LifecycleGraph></Lifecycle>"
                      "<Lifecycle ObjectType='A'><LifecycleGraph>" +
                      stateElement("S") + "</LifecycleGraph></Lifecycle></LifecycleConfig>")
                    .isOk());
    EXPECT_EQ(manager().numLifecycles(), 2);
    const zvCfgLcmGraph& lifecycle = *manager().getLifecycleAt(0);
    EXPECT_EQ(lifecycle.getObjectType(), "Z") << "in the order of the document";
    EXPECT_EQ(manager().getLifecycleAt(2), nullptr);
    EXPECT_EQ(lifecycle.getStateAt(1)->getLocalName(), "X");
    EXPECT_EQ(lifecycle.getStateAt(2), nullptr);
    EXPECT_EQ(lifecycle.getStateByIndex(-5)->getLocalName(), "X");
    EXPECT_EQ(lifecycle.getStateByIndex(0)->getLocalName(), "Y")
        << "without an index the place stands for it";
    const zvCfgLcmState& state = *lifecycle.getStateAt(0);
    ASSERT_EQ(state.numOutgoingTransitions(), 2);
    EXPECT_EQ(zvCfgTransition::typeName(state.getOutgoingTransition(1)->getType()), "Demote");
    EXPECT_EQ(state.getOutgoingTransition(0)->getToState(), "X");
    EXPECT_EQ(state.getOutgoingTransition(2), nullptr);
}

TEST_F(zvCfgLifecycleTest, APathHasItsTransitions) {
    ASSERT_TRUE(
        parseLifecycle("<LifecycleGraph>" +
                       stateElement("A", promoteTo("B") + "<OutgoingTransition Type='Demote' ToState='B'/>" +
                                             promoteTo("B") + promoteTo("A")) +
                       stateElement("B") + "</LifecycleGraph>")
            .isOk());
    zvCfgTransitionPathList paths;
    ASSERT_TRUE(manager().getTransitionPaths("A", "B", "T", "", paths));
    ASSERT_EQ(paths.size(), 2) << "a transition that is there twice is one way";
    EXPECT_EQ(paths.get(0)->getTransitionAt(0)->getType(), zvCfgTransitionPromote);
    EXPECT_EQ(paths.get(1)->getTransitionAt(0)->getType(), zvCfgTransitionDemote);
    EXPECT_EQ(paths.get(1)->getStateAt(1), manager().getLcmStateByLocalName("B", "T"));
    EXPECT_EQ(paths.get(0)->getTransitionAt(1), nullptr);
    EXPECT_EQ(paths.get(0)->getStateAt(2), nullptr);
    EXPECT_EQ(paths.get(2), nullptr);
    EXPECT_FALSE(manager().getTransitionPaths("A", "B", "T", "promote", paths)) << "no such type";
    EXPECT_EQ(paths.size(), 0) << "the paths of another query are gone";
    EXPECT_TRUE(manager().getTransitionPaths("A", "A", "T", "Demote", paths));
    EXPECT_EQ(paths.get(0)->size(), 0);
    EXPECT_FALSE(manager().getTransitionPaths("A", "unknown", "T", "", paths));
    EXPECT_FALSE(manager().getTransitionPaths("A", "A", "unknown", "", paths));
    EXPECT_EQ(paths.size(), 0);
}

TEST_F(zvCfgLifecycleTest, OmittedPathsAreLogged) {
    constexpr int rungs = 20000;
    std::string ladder;
    for (int i = 0; i < rungs; ++i) {
        const std::string left = "L" + std::to_string(i + 1);
        const std::string right = "R" + std::to_string(i + 1);
        for (const char* const side : {"L", "R"}) {
            ladder += stateElement(side + std::to_string(i),
                                   i + 1 == rungs ? "" : promoteTo(left) + promoteTo(right));
        }
    }
    ASSERT_TRUE(parseLifecycle("<LifecycleGraph>" + ladder + "</LifecycleGraph>").isOk());
    zvRecordingLogger::reset();
    EXPECT_EQ(ways("L0", "L10", "T", "").size(), 512U);
    EXPECT_EQ(zvRecordingLogger::lines(), Lines{});
    EXPECT_EQ(ways("L0", "L11", "T", "").size(), 1000U);
    zvCfgTransitionPathList paths;
    EXPECT_TRUE(manager().getTransitionPaths("L0", "R19999", "T", "Promote", paths));
    EXPECT_EQ(paths.get(0)->size(), rungs - 1);
    const Lines expected = {
        "warn: Transition paths from state \"L0\" to state \"L11\" of object type \"T\" are cut off at 1000",
        "warn: Search for transition paths from state \"L0\" to state \"R19999\" of object type \"T\" is "
        "given up "
        "after 20000000 steps, paths found : " +
            std::to_string(paths.size())};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
}

TEST_F(zvCfgLifecycleTest, StatesAreDeletedOnceWithTheManager) {
    int deleted = 0;
    auto* const twice = new Counted<zvCfgLcmState>(deleted);
    twice->setLocalName("A");
    EXPECT_TRUE(manager().addLcmState(twice, "T"));
    EXPECT_FALSE(manager().addLcmState(twice, "T"));
    EXPECT_FALSE(manager().addLcmState(new Counted<zvCfgLcmState>(deleted), "T")) << "it has no name";
    EXPECT_EQ(deleted, 0) << "what is refused belongs to the manager as well";
    zvCfgConfigManager::destroyCfgConfigManager();
    EXPECT_EQ(deleted, 2);
}

}  // namespace
