#include "zvCommonUtils.h"

#include <chrono>
#include <cstdlib>

#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

namespace {

using Lines = std::vector<std::string>;
using zvCommonUtilsTest = zvLoggedTest;

TEST_F(zvCommonUtilsTest, TheFirstNameOfTheHomeVariableWins) {
    EXPECT_FALSE(zvCommonUtils::setGatewayHomeEnvVariable(""));
    EXPECT_EQ(zvCommonUtils::getGatewayHomeEnvVariable(), "GATEWAY_HOME");
    EXPECT_FALSE(zvCommonUtils::setGatewayHomeEnvVariable("OTHER_HOME"));
    EXPECT_EQ(zvCommonUtils::getGatewayHomeEnvVariable(), "GATEWAY_HOME");
    EXPECT_EQ(zvCommonUtils::getGatewayHomePath(), m_folder.path().string().c_str());
    zvPlatform::setEnvironment("GATEWAY_HOME", "moved");
    EXPECT_EQ(zvCommonUtils::getGatewayHomePath(), "moved");
    EXPECT_TRUE(zvCommonUtils::getEnvironmentalVariable("ZV_NOT_SET").empty());
}

TEST_F(zvCommonUtilsTest, FindsTheLocalServer) {
    struct Case {
        const char *file, *content, *url;
        Lines errors;
    };
    const Case cases[] = {
        {"config/client-config.ini",
         "a=1\nlocal-server-url=http://host:1/x?y=z\n",
         "http://host:1/x?y=z",
         {}},
        {"config/client-config.ini",
         "a=1\n",
         "",
         {"\"local-server-url\" cannot be found in the file \"client-config.ini\""}},
        {"elsewhere",
         "",
         "",
         {"Error in opening file : \"" + m_folder.path().string() + "\\config\\client-config.ini\"",
          "Failed to read in the \"client-config.ini\" file"}}};
    for (const Case& c : cases) {
        std::filesystem::remove_all(m_folder.path() / "config");
        m_folder.write(c.file, c.content);
        zvRecordingLogger::reset();
        EXPECT_EQ(zvCommonUtils::getLocalServerUrl(), c.url);
        EXPECT_EQ(zvRecordingLogger::lines("error"), c.errors);
    }
    zvPlatform::setEnvironment("GATEWAY_HOME", "");
    zvRecordingLogger::reset();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(zvCommonUtils::getLocalServerUrl().empty());
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "Environmental variable \"GATEWAY_HOME\" could not be found.");
    EXPECT_TRUE(zvRecordingLogger::lines().empty());
}

TEST_F(zvCommonUtilsTest, FindsFunctionsOfLibraries) {
    const char* const library = onWindows ? "msvcrt" : "libm.so.6";
    auto* const cosine = reinterpret_cast<double (*)(double)>(zvCommonUtils::getFunctionPtr(library, "cos"));
    ASSERT_NE(cosine, nullptr);
    EXPECT_DOUBLE_EQ(cosine(0.0), 1.0);
    EXPECT_EQ(zvCommonUtils::getFunctionPtr(library, "no_such_function"), nullptr);
    EXPECT_EQ(zvCommonUtils::getFunctionPtr("no_such_library", "cos"), nullptr);
    EXPECT_EQ(zvCommonUtils::getFunctionPtr(std::string(5000, 'x').c_str(), "cos"), nullptr);
    EXPECT_EQ(zvCommonUtils::getFunctionPtr("", "cos"), nullptr);
    EXPECT_EQ(zvCommonUtils::getFunctionPtr(library, nullptr), nullptr);
    zvRecordingLogger::reset();
    EXPECT_EQ(zvCommonUtils::getFunctionPtr(nullptr, "cos"), nullptr);
    const Lines expected = {"debug: Inside function zvCommonUtils::getFunctionPtr",
                            "debug: Exiting function zvCommonUtils::getFunctionPtr"};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
}

TEST_F(zvCommonUtilsTest, ReturnsTheTimeAndSleeps) {
    const zvString now = zvCommonUtils::getCurrentTime();
    EXPECT_EQ(now.size(), 25);
    EXPECT_EQ(now[24], u'\n');
    const auto before = std::chrono::steady_clock::now();
    zvCommonUtils::sleep(20);
    EXPECT_GE(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(20));
}

TEST_F(zvCommonUtilsTest, KnowsBooleanTexts) {
    EXPECT_TRUE(zvCommonUtils::validBooleanValue("TRUE") && zvCommonUtils::validBooleanValue("False"));
    EXPECT_FALSE(zvCommonUtils::validBooleanValue("1") || zvCommonUtils::validBooleanValue(""));
}

// In a process of its own, since the name can be set only once per process.
TEST(zvGatewayHomeTest, CanHaveAnotherName) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_EXIT(
        {
            zvPlatform::setEnvironment("OTHER_HOME", "there");
            const bool fixed = zvCommonUtils::setGatewayHomeEnvVariable("OTHER_HOME") &&
                               !zvCommonUtils::setGatewayHomeEnvVariable("GATEWAY_HOME") &&
                               zvCommonUtils::getGatewayHomePath() == "there";
            std::exit(fixed ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

}  // namespace
