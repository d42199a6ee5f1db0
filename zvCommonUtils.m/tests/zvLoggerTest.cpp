#include "zvLogger.h"

#include "zvCommonUtils.h"
#include "zvDebugLogger.h"
#include "zvLogSource.h"
#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestLocale.h"
#include "zvTestSupport.h"

namespace {

using zvLoggerTest = zvLoggedTest;

void withoutHome() { zvPlatform::setEnvironment("GATEWAY_HOME", ""); }

TEST_F(zvLoggerTest, IsConfiguredOnceFromTheGatewayHome) {
    zvLogger::getInstance()->logInfo("x", nullptr, 5);
    zvLogger::getInstance()->logInfo("y", nullptr, 6);
    EXPECT_EQ(zvRecordingLogger::configurations(),
              std::vector<std::string>{m_folder.path().string() + "\\config\\log4cxx.xml"});
    EXPECT_EQ(zvRecordingLogger::events().at(0).loggerName, "com.qrsl.products.lkbridge.product");
    zvLogger::destroyInstance();
    zvLogger::destroyInstance();
    EXPECT_TRUE(zvLogger::getInstance()->isReady());
    EXPECT_EQ(zvRecordingLogger::configurations().size(), 2U);
}

TEST_F(zvLoggerTest, PrefixesTheFileName) {
    struct Case {
        const char *file, *message, *expected;
    };
    const Case cases[] = {{nullptr, "x", "x"},       {"", "x", "x"},
                          {"f.txt", "x", "x"},       {"C:\\a\\b\\f.txt", "x", "f.txt[5] x"},
                          {"a/b\\c/f", "", "f[5] "}, {"C:\\a\\", "x", "x"},
                          {nullptr, "", ""}};
    for (const Case& c : cases) {
        zvLogger::getInstance()->logInfo(c.message, c.file, 5);
        const zvRecordingLogger::Event& event = zvRecordingLogger::events().back();
        EXPECT_EQ(event.message, c.expected);
        EXPECT_EQ(event.file, c.file == nullptr ? "" : c.file);
        EXPECT_EQ(event.line, 5);
    }
}

TEST_F(zvLoggerTest, PrefixesTheFileNameInEveryEncoding) {
    for (const zvTestEncoding& encoding : zvTestEncodings) {
        const zvTestLocale locale(encoding.definition, encoding.encoding);
        if (!locale.isSet()) {
            GTEST_SKIP() << "the locale " << encoding.definition << " in " << encoding.encoding;
        }
        const std::string name = std::string(encoding.character) + "f.cpp";
        const std::string path = std::string("C:\\a").append(name).append("\\").append(name);
        zvLogger::getInstance()->logInfo("x", path.c_str(), 5);
        EXPECT_EQ(zvRecordingLogger::events().back().message, name + "[5] x") << encoding.encoding;
        zvLogger::getInstance()->logInfo("x", name.c_str(), 5);
        EXPECT_EQ(zvRecordingLogger::events().back().message, "x") << encoding.encoding;
    }
}

TEST_F(zvLoggerTest, EveryLevelReachesItsOwnFunction) {
    zvLogger* const logger = zvLogger::getInstance();
    logger->logDebug("1", nullptr, 0);
    logger->logInfo("2", nullptr, 0);
    logger->logWarn("3", nullptr, 0);
    logger->logError("4", nullptr, 0);
    logger->logFatal("5", nullptr, 0);
    logger->logAlways(u"6 \u20AC", nullptr, 0);
    const std::vector<std::string> expected = {"debug: 1", "info: 2",  "warn: 3",
                                               "error: 4", "fatal: 5", "always: " + narrow(u"6 \u20AC")};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
}

TEST_F(zvLoggerTest, StaysSilentWithoutAHome) {
    withoutHome();
    testing::internal::CaptureStdout();
    zvLogger::getInstance()->logError("lost", "a/b", 1);
    zvDebugLogger::getInstance("silent")->logMsg("lost", "a/b", 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Environmental variable \"GATEWAY_HOME\" could not be found."
              "Environmental variable \"GATEWAY_HOME\" could not be found.");
    EXPECT_TRUE(zvRecordingLogger::configurations().empty());
    EXPECT_TRUE(zvRecordingLogger::events().empty());
}

TEST_F(zvLoggerTest, DropsMessagesWhenTheConfigurationIsRefused) {
    zvRecordingLogger::onInitialize([](const std::string&) { return false; });
    zvLogger::getInstance()->logError("lost", "a/b", 1);
    EXPECT_FALSE(zvLogger::getInstance()->isReady());
    EXPECT_EQ(zvRecordingLogger::configurations().size(), 1U);
    EXPECT_TRUE(zvRecordingLogger::events().empty());
}

TEST_F(zvLoggerTest, HasNoLoggerForCallsDuringItsCreation) {
    bool none = false;
    zvRecordingLogger::onInitialize([&none](const std::string&) {
        none = zvLogger::getInstance() == nullptr;
        zvLogSource("a/b").error("goes nowhere");
        return true;
    });
    EXPECT_NE(zvLogger::getInstance(), nullptr);
    EXPECT_TRUE(none);
    EXPECT_TRUE(zvRecordingLogger::events().empty());
}

TEST_F(zvLoggerTest, CallsAPieceForAMessageThatIsRead) {
    zvLogSource("a/b").info(
        "call ", [] { return zvString(1); }, ".");
    EXPECT_EQ(zvRecordingLogger::lines(), std::vector<std::string>{"info: call 1."});
}

TEST_F(zvLoggerTest, CallsNoPieceForAMessageThatNobodyReads) {
    zvRecordingLogger::onInitialize([](const std::string&) { return false; });
    bool called = false;
    zvLogSource("a/b").info("call ", [&called] {
        called = true;
        return zvString(1);
    });
    EXPECT_FALSE(called);
}

TEST_F(zvLoggerTest, RaisesWhatItLogs) {
    constexpr zvLogSource source("zvModule.m/src/zvThing");
    EXPECT_EQ(messageThrownBy([&] { source.raise("number ", 7, " of ", zvString("x")); }), "number 7 of x");
    EXPECT_EQ(zvRecordingLogger::lines(), std::vector<std::string>{"error: number 7 of x"});
    EXPECT_EQ(zvRecordingLogger::events().at(0).file, "zvModule.m/src/zvThing");
}

TEST_F(zvLoggerTest, DebugLoggersAreOneForEachName) {
    zvDebugLogger* const a = zvDebugLogger::getInstance("a");
    EXPECT_EQ(zvDebugLogger::getInstance("a"), a);
    const std::string longName(5000, 'n');
    zvDebugLogger* const b = zvDebugLogger::getInstance(longName.c_str());
    EXPECT_NE(a, b);
    EXPECT_EQ(zvRecordingLogger::configurations().size(), 2U);
    b->logMsg("m", "d/f", 2);
    EXPECT_EQ(zvRecordingLogger::events().at(0).loggerName, longName.substr(0, 1026));
    EXPECT_EQ(zvRecordingLogger::lines(), std::vector<std::string>{"debug: m"});
    zvDebugLogger::destroyInstance("unknown");
    zvDebugLogger::destroyInstance("a");
    zvDebugLogger::destroyInstance("a");
    zvDebugLogger::getInstance("a")->logMsg("after the end", nullptr, 0);
    EXPECT_EQ(zvRecordingLogger::events().size(), 1U);
}

}  // namespace
