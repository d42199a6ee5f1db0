#ifndef ZV_JAVA_TEST_H
#define ZV_JAVA_TEST_H

#include <cstdlib>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "zvFSClient.h"
#include "zvJavaMachine.h"
#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

using Lines = std::vector<std::string>;

/// RAII guard that sets an environment variable and restores it.
class zvScopedVariable {
public:
    zvScopedVariable(const char* name, const std::string& value) : m_name(name) {
        const char* const before = std::getenv(name);
        m_before = before == nullptr ? "" : before;
        zvPlatform::setEnvironment(name, value.c_str());
    }
    zvScopedVariable(const zvScopedVariable&) = delete;
    zvScopedVariable& operator=(const zvScopedVariable&) = delete;
    ~zvScopedVariable() { zvPlatform::setEnvironment(m_name, m_before.c_str()); }

private:
    const char* m_name;
    std::string m_before;
};

/// The delivered client with what it needs, which a cross-built jar does not name.
inline const std::string deliveredClient =
    std::string(ZV_CLIENT_JAR) + (onWindows ? ";" : ":") + ZV_COMMONS_NET_JAR;

/// What Java ends lines with.
constexpr const char* javaLineEnd = onWindows ? "\r\n" : "\n";

/// Ends the tests' JVM before the process: while its threads run, Windows would stop them in the middle of
/// anything, which the end of the process may then meet.
class zvJavaEnd : public testing::Environment {
public:
    void TearDown() override { zvJavaMachine::end(); }
};
inline testing::Environment* const javaEnd = testing::AddGlobalTestEnvironment(new zvJavaEnd);

/// A fixture with a real JVM that runs with -Xcheck:jni, and the recording file-server client.
class zvJavaTest : public zvLoggedTest {
protected:
    zvJavaTest() {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        if (onWindows) {  // where no locale has the characters of the tests
            zvPlatform::adoptUtf8();
        }
    }
    ~zvJavaTest() override { zvFSClient::destroyInstance(); }
    void SetUp() override {
        const std::string java = zvPlatform::environment("ZV_JAVA_OF_WINDOWS");
        if (onWindows && java.empty()) {
            GTEST_SKIP() << "a real Java virtual machine";
        } else if (onWindows) {
            zvPlatform::setEnvironment("JAVA_HOME", java.c_str());
        }
    }

    /// Writes a configuration file for the recording client.
    std::string configuration(const std::string& script = "") const {
        return m_folder.write("client.properties", script);
    }
    /// Reconnects and discards everything recorded and logged.
    zvFSClient& connect(const std::string& script = "") {
        zvFSClient::destroyInstance();
        zvFSClient& client = *zvFSClient::getInstance(configuration(script).c_str());
        forget();
        return client;
    }
    /// The recorded calls.
    Lines calls() const {
        Lines lines;
        std::istringstream recorded(readAll(m_folder.file("client.properties.calls")));
        for (std::string line; std::getline(recorded, line);) {
            if (onWindows && !line.empty() && line.back() == '\r') {
                line.pop_back();
            }
            lines.push_back(line);
        }
        return lines;
    }
    void forget() {
        std::filesystem::remove(m_folder.file("client.properties.calls"));
        zvRecordingLogger::reset();
    }

    /// Runs `test` in a process of its own, without a running JVM.
    static void inProcessOfItsOwn(const std::function<void()>& test) {
        const auto run = [&] {
            test();
            zvJavaMachine::end();
            std::exit(testing::Test::HasFailure() ? 1 : 0);
        };
        EXPECT_EXIT(run(), testing::ExitedWithCode(0), "");
    }

private:
    const zvScopedVariable m_options{"JAVA_TOOL_OPTIONS", "-Xcheck:jni -Xmx32m"};
    const zvScopedVariable m_classPath{"CLASSPATH", ZV_RECORDING_JAR};
};

#endif
