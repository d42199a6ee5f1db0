#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <system_error>

#include "zvFaultyMemory.h"
#include "zvLoggerLibrary.h"

namespace {

namespace fs = std::filesystem;

class zvLoggerLibraryFaultTest : public testing::Test {
protected:
    zvLoggerLibraryFaultTest() {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    ~zvLoggerLibraryFaultTest() override { fs::remove_all(m_folder); }

    std::string configuration() const {
        const fs::path path = m_folder / "log4cxx.xml";
        std::ofstream(path) << R"(<log4j:configuration xmlns:log4j="http://jakarta.apache.org/log4j/">)"
                            << R"(<appender name="file" class="org.apache.log4j.FileAppender">)"
                            << R"(<param name="File" value=")" << logFile().string() << R"("/>)"
                            << R"(<layout class="org.apache.log4j.PatternLayout">)"
                            << R"(<param name="ConversionPattern" value="%c|%m%n"/></layout></appender>)"
                            << R"(<root><level value="info"/><appender-ref ref="file"/></root>)"
                            << "</log4j:configuration>";
        return path.string();
    }

    // Whether the next line is written.
    bool writes(const char* name) const {
        std::error_code missing;
        fs::resize_file(logFile(), 0, missing);
        LogInfoMessage(name, "next", "a/b.cpp", 1);
        std::ifstream file(logFile());
        return std::string(std::istreambuf_iterator<char>(file), {}) == std::string(name) + "|next\n";
    }

    fs::path logFile() const { return m_folder / "out.log"; }

    const fs::path m_folder =
        fs::current_path() / "logger-tests" / testing::UnitTest::GetInstance()->current_test_info()->name();
};

// Each time in a process that has not been configured: log4cxx itself does not survive a fault while it
// closes an earlier configuration.
TEST_F(zvLoggerLibraryFaultTest, TheFirstConfigurationSurvivesAFailedAllocation) {
    const std::string path = configuration();
    enum Outcome { wrong, survived, faultless };
    const auto attempt = [&](int allowed) {
        zvFaultyMemory::failOnceAfter(allowed);
        const bool isReady = InitializeLogger(path.c_str());
        const bool hasFailed = zvFaultyMemory::hasFailed();
        zvFaultyMemory::allow(-1);
        return !isReady || !writes("a.b") ? wrong : hasFailed ? survived : faultless;
    };
    bool isDone = false;
    for (int allowed = 0; !isDone; ++allowed) {
        EXPECT_EXIT(
            std::exit(attempt(allowed)),
            [&isDone](int status) {
                isDone = testing::ExitedWithCode(faultless)(status);
                return isDone || testing::ExitedWithCode(survived)(status);
            },
            "")
            << allowed;
        ASSERT_FALSE(HasFailure());
    }
}

TEST_F(zvLoggerLibraryFaultTest, AFailedAllocationLosesOneLine) {
    ASSERT_TRUE(InitializeLogger(configuration().c_str()));
    bool faultless = false;
    for (int allowed = 0; !faultless; ++allowed) {
        const std::string name = "logger.number." + std::to_string(allowed);
        zvFaultyMemory::failOnceAfter(allowed);
        EXPECT_NO_THROW(LogInfoMessage(name.c_str(), "first", "a/b.cpp", 1)) << allowed;
        faultless = !zvFaultyMemory::hasFailed();
        zvFaultyMemory::allow(-1);
        EXPECT_TRUE(writes(name.c_str())) << allowed;
    }
}

}  // namespace
