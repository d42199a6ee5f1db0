#include <apr_file_io.h>
#include <apr_general.h>
#include <gtest/gtest.h>

#ifdef _WIN32
#include <process.h>
#endif

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <future>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "zvLoggerLibrary.h"
#include "zvLoggerTestMessage.h"
#include "zvPlatform.h"

namespace {

#ifdef _WIN32
constexpr bool onWindows = true;
std::time_t timegm(std::tm* time) { return ::_mkgmtime(time); }
#else
constexpr bool onWindows = false;
#endif

namespace fs = std::filesystem;

using Lines = std::multiset<std::string>;

constexpr char documentStart[] = R"(<log4j:configuration xmlns:log4j="http://jakarta.apache.org/log4j/">)";

std::string parameter(const std::string& name, const std::string& value) {
    return "<param name=\"" + name + "\" value=\"" + value + "\"/>";
}

class zvLoggerLibraryTest : public testing::Test {
protected:
    zvLoggerLibraryTest() {
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    ~zvLoggerLibraryTest() override {
        closeLogs();
        fs::remove_all(m_folder);
    }

    /// Has another file logged to: Windows removes none that is open.
    void closeLogs() const {
        const fs::path other = m_folder.parent_path() / "other.xml";
        const std::string file = (m_folder.parent_path() / "other.log").string();
        std::ofstream(other) << std::regex_replace(
            configuration("off", ""), std::regex("\"File\" value=\"[^\"]*"), "\"File\" value=\"" + file);
        InitializeLogger(other.string().c_str());
    }

    std::string write(const std::string& name, const std::string& content) const {
        std::ofstream(m_folder / name) << content;
        return (m_folder / name).string();
    }

    /// Writes a configuration whose root logger has `level` and an appender with `parameters` to
    /// "logs/out.log", in a missing folder.
    std::string configuration(const std::string& level, const std::string& parameters,
                              const std::string& type = "FileAppender",
                              const std::string& pattern = "%p|%c|%F|%L|%m%n") const {
        return documentStart + (R"(<appender name="file" class="org.apache.log4j.)" + type + "\">") +
               parameter("File", (m_folder / "logs" / "out.log").string()) + parameters +
               R"(<layout class="org.apache.log4j.PatternLayout">)" +
               parameter("ConversionPattern", pattern) + R"(</layout></appender><root><level value=")" +
               level + R"("/><appender-ref ref="file"/></root></log4j:configuration>)";
    }

    /// The lines of all log files, backups included.
    Lines lines() const {
        Lines found;
        for (const auto& entry : fs::directory_iterator(m_folder / "logs")) {
            std::ifstream file(entry.path());
            for (std::string line; std::getline(file, line);) {
                found.insert(line);
            }
        }
        return found;
    }

    /// Runs the test program; true if its exit code is 0.
    static bool run(const std::string& path, const std::string& name, int count) {
        const std::string number = std::to_string(count);
        const std::string quotedPath = "\"" + path + "\"";
#ifdef _WIN32
        // Without the shell, of which wine does not start a hundred at once.
        return ::_spawnl(_P_WAIT, ZV_LOGGER_TEST_PROGRAM, "zvLoggerTestProgram", quotedPath.c_str(),
                         name.c_str(), number.c_str(), nullptr) == 0;
#else
        const std::string command =
            std::string("\"") + ZV_LOGGER_TEST_PROGRAM + "\" " + quotedPath + " " + name + " " + number;
        return std::system(command.c_str()) == 0;
#endif
    }

    const fs::path m_folder =
        fs::current_path() / "logger-tests" / testing::UnitTest::GetInstance()->current_test_info()->name();
};

/// A lock on the file as another process would have it: it is that of the open file, which need only be read.
class OtherLock {
public:
    explicit OtherLock(const std::string& path) {
        apr_initialize();
        apr_pool_create(&m_pPool, nullptr);
        apr_file_open(&m_pFile, path.c_str(), APR_FOPEN_READ, APR_FPROT_OS_DEFAULT, m_pPool);
    }
    OtherLock(const OtherLock&) = delete;
    OtherLock& operator=(const OtherLock&) = delete;
    ~OtherLock() { apr_pool_destroy(m_pPool); }

    void hold() const { ASSERT_EQ(apr_file_lock(m_pFile, APR_FLOCK_SHARED), APR_SUCCESS); }
    void free() const { ASSERT_EQ(apr_file_unlock(m_pFile), APR_SUCCESS); }

private:
    apr_pool_t* m_pPool = nullptr;
    apr_file_t* m_pFile = nullptr;
};

}  // namespace

TEST_F(zvLoggerLibraryTest, LevelsAreFilteredByLoggerAndAppender) {
    const struct {
        const char* root;
        const char* appender;
        const char* written;
    } cases[] = {{"all", "all", "DEBUG INFO WARN ERROR FATAL ALWAYS"},
                 {"info", "all", "INFO WARN ERROR FATAL ALWAYS"},
                 {"all", "error", "ERROR FATAL ALWAYS"},
                 {"off", "off", "ALWAYS"}};
    for (const auto& thresholds : cases) {
        const std::string name = std::string(thresholds.root) + thresholds.appender;
        const std::string content =
            configuration(thresholds.root, parameter("Threshold", thresholds.appender));
        ASSERT_TRUE(InitializeLogger(write(name, content).c_str()));
        for (const auto log : {LogDebugMessage, LogInfoMessage, LogWarnMessage, LogErrorMessage,
                               LogFatalMessage, LogAlwaysMessage}) {
            log("a.b", "text", "x.m/src/y.cpp", 42);
        }
        Lines expected;
        std::istringstream written(thresholds.written);
        for (std::string level; written >> level;) {
            expected.insert(level + "|a.b|x.m/src/y.cpp|42|text");
        }
        EXPECT_EQ(lines(), expected) << name;
        fs::resize_file(m_folder / "logs" / "out.log", 0);
    }
}

TEST_F(zvLoggerLibraryTest, LogsAnyTextAndIgnoresNull) {
    const std::string content = configuration("info", parameter("Encoding", "UTF-8"));
    ASSERT_TRUE(InitializeLogger(write("log4cxx.xml", content).c_str()));
    Lines expected = {"INFO|a|?|2|no file"};
    for (const std::string& text :
         {std::string(), std::string("\xE2\x82\xAC \xF0\x9D\x84\x9E"), std::string(9999, 'x')}) {
        LogInfoMessage("gr\xC3\xBC\xC3\x9F", text.c_str(), "f", 1);
        expected.insert("INFO|gr\xC3\xBC\xC3\x9F|f|1|" + text);
    }
    LogInfoMessage("a", "no file", nullptr, 2);
    LogInfoMessage(nullptr, "no logger", "f", 3);
    LogAlwaysMessage("a", nullptr, "f", 4);
    EXPECT_EQ(lines(), expected);

    LogFatalMessage("a", "not decodable \xFF\xC3( but here", "f", 5);
    const Lines found = lines();
    EXPECT_TRUE(std::regex_match(*found.begin(), std::regex("FATAL\\|a\\|f\\|5\\|not decodable .* but here")))
        << *found.begin();
}

TEST_F(zvLoggerLibraryTest, NoMessageMakesALineOrControlsATerminal) {
    const struct {
        const char* source;
        std::string message;
        Lines written;
    } cases[] = {
        {"f", "a\nb\rc\td", {"INFO|a|f|1|a\\nb\\rc\td"}},
        {"f", "\x1b]0;title\a\x7f", {"INFO|a|f|1|\\x1b]0;title\\x07\\x7f"}},
        {"f",
         "gr\xC3\xBC\n\xC2\x9b\xE2\x80\xAE\xE2\x81\xA6\xE2\x81\xA9\xE2\x80\xAC\xE2\x80\xA8",
         {"INFO|a|f|1|gr\xC3\xBC\\n\\x9b\\u202e\\u2066\\u2069\\u202c\\u2028"}},
        {"zvCommonUtils.m/src/zvFSClient",
         "java.io.IOException: \x1b[31m\nINFO|a|forged\r\n\tat x",
         {"INFO|a|zvCommonUtils.m/src/zvFSClient|1|java.io.IOException: \\x1b[31m", "    INFO|a|forged\\r",
          "    \tat x"}},
        {"zvCommonUtils.m/src/zvC2JBridge",
         "\njava 17\n",
         {"INFO|a|zvCommonUtils.m/src/zvC2JBridge|1|", "    java 17", ""}},
    };
    ASSERT_TRUE(InitializeLogger(
        write("log4cxx.xml", configuration("info", parameter("Encoding", "UTF-8"))).c_str()));
    for (const auto& logged : cases) {
        LogInfoMessage("a", logged.message.c_str(), logged.source, 1);
        EXPECT_EQ(lines(), logged.written) << logged.message;
        fs::resize_file(m_folder / "logs" / "out.log", 0);
    }
}

TEST_F(zvLoggerLibraryTest, ALockThatAnotherProcessKeepsCostsLinesOnly) {
    ASSERT_TRUE(InitializeLogger(write("log4cxx.xml", configuration("info", "")).c_str()));
    const fs::path lock = m_folder / "logs" / "log4cxx.lock";
    if (!onWindows) {
        EXPECT_EQ(fs::status(lock).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    }
    const OtherLock other(lock.string());
    other.hold();
    testing::internal::CaptureStderr();
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i) {
        LogInfoMessage("a", "left out", "f", 2);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(8)) << "the wait is one of 5 s";
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "log: another process has " + lock.string() + " locked for 5 s: lines are left out\n");
    other.free();
    LogInfoMessage("a", "first", "f", 3);
    // What has its file needs no lock until it rolls over.
    other.hold();
    LogInfoMessage("a", "beside the lock", "f", 4);
    EXPECT_EQ(lines(), (Lines{"INFO|a|f|3|first", "INFO|a|f|4|beside the lock"}));
}

TEST_F(zvLoggerLibraryTest, RefusesInvalidConfigurationsWithAReason) {
    const std::string content = configuration("info", "");
    const std::string refused[] = {
        m_folder.string(),
        write("empty.xml", ""),
        write("cut.xml", content.substr(0, content.size() / 2)),
        write("other.xml", "<CustomizationConfig/>"),
        write("none.xml", documentStart + std::string("</log4j:configuration>")),
        write("classless.xml", std::regex_replace(content, std::regex("FileAppender"), "FilAppender"))};
    for (const std::string& path : refused) {
        testing::internal::CaptureStderr();
        EXPECT_FALSE(InitializeLogger(path.c_str())) << path;
        EXPECT_NE(testing::internal::GetCapturedStderr(), "") << path;
        LogAlwaysMessage("a", "harmless", "f", 1);
    }
    testing::internal::CaptureStderr();
    EXPECT_FALSE(InitializeLogger((m_folder / "missing.xml").string().c_str()));
    EXPECT_FALSE(InitializeLogger(nullptr));
    EXPECT_FALSE(InitializeLogger(""));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "to go without a log is no fault";

    ASSERT_TRUE(InitializeLogger(write("log4cxx.xml", content).c_str()));
    EXPECT_FALSE(InitializeLogger(refused[0].c_str()));
    LogInfoMessage("a", "goes on", "f", 1);
    EXPECT_EQ(lines(), Lines{"INFO|a|f|1|goes on"});
}

TEST_F(zvLoggerLibraryTest, OnlyAnotherPathConfiguresAgain) {
    const std::string content =
        configuration("info", parameter("Append", "false") + parameter("BufferedIO", "true"));
    const std::string path = write("log4cxx.xml", content);
    std::string backslashes = path;
    std::replace(backslashes.begin(), backslashes.end(), '/', '\\');
    Lines expected;
    for (const std::string& spelling : {path, path, backslashes, (m_folder / "." / "log4cxx.xml").string()}) {
        ASSERT_TRUE(InitializeLogger(spelling.c_str())) << spelling;
        LogInfoMessage("a", spelling.c_str(), "f", 1);
        expected.insert("INFO|a|f|1|" + spelling);
        EXPECT_EQ(lines(), expected) << spelling;
    }
    ASSERT_TRUE(InitializeLogger(write("other.xml", configuration("error", "")).c_str()));
    LogInfoMessage("a", "below the threshold", "f", 1);
    EXPECT_EQ(lines(), expected);
}

TEST_F(zvLoggerLibraryTest, ALoggerWithoutAppendersIsSilent) {
    std::string content =
        std::regex_replace(configuration("info", ""), std::regex("<root"), "<logger name=\"heard\"");
    content = std::regex_replace(content, std::regex("</root"), "</logger");
    testing::internal::CaptureStderr();
    ASSERT_TRUE(InitializeLogger(write("log4cxx.xml", content).c_str()));
    LogErrorMessage("unheard", "text", "f", 1);
    LogErrorMessage("heard.too", "text", "f", 1);
    EXPECT_EQ(lines(), Lines{"ERROR|heard.too|f|1|text"});
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(zvLoggerLibraryTest, LogsUntilTheProcessHasEnded) {
    // A file this small is rolled over at every line, which exercises most of log4cxx.
    const std::string parameters =
        parameter("MaxFileSize", "10") + parameter("MaxBackupIndex", "9") + parameter("Encoding", "UTF-8");
    ASSERT_TRUE(
        run(write("log4cxx.xml", configuration("info", parameters, "RollingFileAppender")), "program", 1));
    EXPECT_EQ(lines(), (Lines{"INFO|test.program|test/program.cpp|0|" + zvLoggerTestMessage("program", 0),
                              "ERROR|at.exit|at/exit.cpp|3|called",
                              "INFO|early.object|early/object.cpp|1|destroyed \xC3\xBC",
                              "ALWAYS|early.object.always|early/object.cpp|2|destroyed"}));
}

TEST_F(zvLoggerLibraryTest, ManyProcessesShareARollingFile) {
    // Under wine a rollover, after which each of them opens the file anew, takes a hundred times as long, and
    // once more in an emulated machine.
    constexpr bool isEmulated = sizeof(void*) == 4;
    constexpr int processes = isEmulated ? 6 : 100;
    constexpr int messages = 40;
    constexpr int linesAtExit = 3;
    const char* const size = isEmulated ? "200KB" : onWindows ? "4MB" : "1MB";
    const std::string parameters = parameter("MaxFileSize", size) + parameter("MaxBackupIndex", "12");
    const std::string path = write("log4cxx.xml", configuration("info", parameters, "RollingFileAppender"));
    std::array<std::future<bool>, processes> running;
    for (std::size_t i = 0; i < processes; ++i) {
        running[i] = std::async(std::launch::async, run, path, "p" + std::to_string(i), messages);
    }
    EXPECT_TRUE(
        std::all_of(running.begin(), running.end(), [](std::future<bool>& ran) { return ran.get(); }));
    const Lines found = lines();
    for (int i = 0; i < processes * messages; ++i) {
        const std::string line = "INFO|test.program|test/program.cpp|" + std::to_string(i % messages) + "|" +
                                 zvLoggerTestMessage("p" + std::to_string(i / messages), i % messages);
        ASSERT_EQ(found.count(line), 1U) << line.substr(0, 80);
    }
    EXPECT_EQ(found.size(), static_cast<std::size_t>(processes * (messages + linesAtExit)));
    EXPECT_TRUE(fs::exists(m_folder / "logs" / (onWindows ? "out.log.1" : "out.log.7")));
}

TEST_F(zvLoggerLibraryTest, ADeletedLogFolderIsRecreated) {
    if (onWindows) {
        GTEST_SKIP() << "Windows keeps a folder with an open file";
    }
    ASSERT_TRUE(InitializeLogger(write("log4cxx.xml", configuration("info", "")).c_str()));
    LogInfoMessage("a", "before", "f", 1);
    fs::remove_all(m_folder / "logs");
    LogInfoMessage("a", "after", "f", 2);
    EXPECT_EQ(lines(), Lines{"INFO|a|f|2|after"});
    fs::remove_all(m_folder / "logs");
    write("logs", "in the way");
    LogInfoMessage("a", "nowhere to go", "f", 3);
    fs::remove(m_folder / "logs");
    LogInfoMessage("a", "once it is possible", "f", 4);
    EXPECT_EQ(lines(), Lines{"INFO|a|f|4|once it is possible"});
}

TEST_F(zvLoggerLibraryTest, ALogThatCannotBeOpenedIsToldOnceAndWritesOnceItCan) {
    const fs::path logs = m_folder / "logs";
    for (const char* const type : {"FileAppender", "RollingFileAppender"}) {
        const std::string path = write(std::string(type) + ".xml", configuration("info", "", type));
        closeLogs();
        fs::remove_all(logs);
        write("logs", "in the way");
        testing::internal::CaptureStderr();
        EXPECT_TRUE(InitializeLogger(path.c_str()));
        LogInfoMessage("a", "nowhere to go", "f", 1);
        LogInfoMessage("a", "nor this one", "f", 2);
        EXPECT_EQ(testing::internal::GetCapturedStderr(),
                  "log: " + (logs / "out.log").string() + " cannot be opened: Not a directory\n");
        fs::remove(logs);
        LogInfoMessage("a", "once it is possible", "f", 3);
        EXPECT_EQ(lines(), Lines{"INFO|a|f|3|once it is possible"});
    }
}

TEST_F(zvLoggerLibraryTest, ARequiredLogThatCannotBeOpenedIsRefused) {
    write("logs", "in the way");
    const std::string path = write("required.xml", configuration("info", ""));
    zvPlatform::setEnvironment("GATEWAY_LOG_REQUIRED", "yes");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(InitializeLogger(path.c_str()));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "log: " + (m_folder / "logs" / "out.log").string() + " cannot be opened: Not a directory\n");
    fs::remove(m_folder / "logs");
    EXPECT_TRUE(InitializeLogger(path.c_str()));
    zvPlatform::setEnvironment("GATEWAY_LOG_REQUIRED", "");
}

TEST_F(zvLoggerLibraryTest, TheFilesAreWhereTheirNamesSay) {
    const auto folder = m_folder / fs::u8path(
                                       "Gr\xC3\xB6\xC3\x9F"
                                       "e \xE2\x82\xAC");
    fs::create_directories(folder);
    const std::string content = std::regex_replace(configuration("info", ""), std::regex("logs.out[.]log"),
                                                   folder.filename().u8string() + "/\xC3\xBC.log");
    std::ofstream(folder / "log4cxx.xml") << content;
    ASSERT_TRUE(InitializeLogger((folder / "log4cxx.xml").u8string().c_str()));
    LogInfoMessage("a", "here", "f", 1);
    std::set<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder)) {
        found.insert(entry.path().filename().u8string());
    }
    EXPECT_EQ(found, (std::set<std::string>{"log4cxx.lock", "log4cxx.xml", "\xC3\xBC.log"}));
}

TEST_F(zvLoggerLibraryTest, EveryLineOfAnEventCarriesItsIdentity) {
    const std::pair<const char*, Lines> cases[] = {
        {"%X{EventId}|%m%n", {"before|1", "gr\xC3\xBC|2", "|3", "other|4", "gr\xC3\xBC|5", "|6"}},
        {"%m%n", {"[before] 1", "[gr\xC3\xBC] 2", "3", "[other] 4", "[gr\xC3\xBC] 5", "6"}}};
    for (const auto& [pattern, expected] : cases) {
        closeLogs();
        fs::remove_all(m_folder / "logs");
        SetLogEventId("before");
        const std::string content =
            configuration("info", parameter("Encoding", "UTF-8"), "FileAppender", pattern);
        ASSERT_TRUE(InitializeLogger(write(std::to_string(content.size()) + ".xml", content).c_str()));
        LogInfoMessage("a", "1", "f", 1);
        SetLogEventId("gr\xC3\xBC");
        LogInfoMessage("a", "2", "f", 1);
        std::thread([] {
            LogInfoMessage("a", "3", "f", 1);
            SetLogEventId("other");
            LogInfoMessage("a", "4", "f", 1);
        }).join();
        LogInfoMessage("a", "5", "f", 1);
        SetLogEventId(pattern[1] == 'm' ? "" : nullptr);
        LogInfoMessage("a", "6", "f", 1);
        EXPECT_EQ(lines(), expected) << pattern;
    }
}

TEST_F(zvLoggerLibraryTest, TheSampleHomeTellsTheOffsetFromUtc) {
    zvPlatform::setEnvironment("GATEWAY_HOME", m_folder.string().c_str());
    // The last one has summer time all year. On Windows the zone is the system's.
    const auto zones = onWindows ? std::vector<const char*>{""} : std::vector{"UTC",
                                                                              "Europe/Berlin",
                                                                              "Asia/Kathmandu",
                                                                              "America/St_Johns",
                                                                              "Pacific/Kiritimati",
                                                                              "AST4ADT,0/0,J365/25"};
    for (const char* const zone : zones) {
        fs::remove_all(m_folder / "logs");
        zvPlatform::setEnvironment("TZ", zone);
        ASSERT_TRUE(run(ZV_SAMPLE_LOG_CONFIGURATION, "zone", 1));
        const Lines found = lines();
        ASSERT_FALSE(found.empty());
        std::tm time{};
        std::array<char, 6> offset{};
        ASSERT_EQ(
            std::sscanf(found.begin()->c_str(), "%d-%d-%d %d:%d:%d,%*3d %5s [", &time.tm_year, &time.tm_mon,
                        &time.tm_mday, &time.tm_hour, &time.tm_min, &time.tm_sec, offset.data()),
            7);
        time.tm_year -= 1900;
        time.tm_mon -= 1;
        // Z for UTC, otherwise hours and minutes.
        const int number = std::atoi(offset.data());
        const int seconds = (number / 100 * 60 + number % 100) * 60;
        EXPECT_EQ(number == 0, offset[0] == 'Z') << zone;
        EXPECT_LT(std::abs(timegm(&time) - seconds - std::time(nullptr)), 600) << zone << *found.begin();
    }
    zvPlatform::setEnvironment("TZ", "");
}

TEST_F(zvLoggerLibraryTest, TheSampleHomeLogsBelowItself) {
    zvPlatform::setEnvironment("GATEWAY_HOME", m_folder.string().c_str());
    ASSERT_TRUE(InitializeLogger(ZV_SAMPLE_LOG_CONFIGURATION));
    LogDebugMessage("com.qrsl.products.lkbridge.product", "unseen", "x.m/src/y", 7);
    LogInfoMessage("com.qrsl.products.lkbridge.product", "gr\xC3\xBC\xC3\x9F", "x.m/src/y", 8);
    const Lines found = lines();
    ASSERT_EQ(found.size(), 1U);
    const std::regex expected(
        R"([0-9]{4}-[0-9]{2}-[0-9]{2} [0-9:]{8},[0-9]{3} (Z|[+-][0-9]{4}) \[[0-9]+\] \[\] )"
        R"(INFO   com[.]qrsl[.]products[.]lkbridge[.]product \(x[.]m/src/y:8\) )"
        "gr\xC3\xBC\xC3\x9F");
    EXPECT_TRUE(std::regex_match(*found.begin(), expected)) << *found.begin();
}
