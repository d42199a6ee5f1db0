#include <fcntl.h>
#include <log4cxx/logger.h>
#include <log4cxx/propertyconfigurator.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"
#include "zvLogger.h"

namespace {

constexpr char pattern[] = "%d{ISO8601} %-6p %c (%F:%L) %m%n";
constexpr char loggerName[] = "com.qrsl.products.lkbridge.product";
constexpr char message[] = "EventShadowDir successfully created: C:\\shadow\\1700000000";

// Sets a gateway home with this content of "log4cxx.xml"; no gateway home if it is empty.
void useHome(const std::string& configuration) {
    const std::string home = zvBenchmarkFiles::path("home");
    std::filesystem::create_directories(home + "/config");
    if (!configuration.empty()) {
        std::ofstream(home + "/config/log4cxx.xml") << configuration;
    }
    setenv("GATEWAY_HOME", home.c_str(), 1);
}

log4cxx::LoggerPtr peer(const std::string& level) {
    const std::string file = zvBenchmarkFiles::path("peer.properties");
    std::ofstream(file)
        << "log4j.rootLogger=" << level
        << ", file\nlog4j.appender.file=org.apache.log4j.FileAppender\nlog4j.appender.file.File="
        << zvBenchmarkFiles::path("peer.log")
        << "\nlog4j.appender.file.layout=org.apache.log4j.PatternLayout\n"
           "log4j.appender.file.layout.ConversionPattern="
        << pattern << '\n';
    log4cxx::PropertyConfigurator::configure(log4cxx::File(file));
    return log4cxx::Logger::getLogger(loggerName);
}

std::string ours() {
    return R"(<log4j:configuration xmlns:log4j="http://jakarta.apache.org/log4j/">
  <appender name="file" class="org.apache.log4j.FileAppender">
    <param name="File" value=")" +
           zvBenchmarkFiles::path("ours.log") + R"("/>
    <layout class="org.apache.log4j.PatternLayout"><param name="ConversionPattern" value=")" +
           pattern + R"("/></layout>
  </appender>
  <root><level value="info"/><appender-ref ref="file"/></root>
</log4j:configuration>
)";
}

// The minimum for several processes that share a rolling log file: lock it, and check whether it was rolled
// over.
class SharedFile {
public:
    SharedFile() : m_lock(open(zvBenchmarkFiles::path("peer.lock").c_str(), O_CREAT | O_WRONLY, 0600)) {}
    SharedFile(const SharedFile&) = delete;
    SharedFile& operator=(const SharedFile&) = delete;
    ~SharedFile() { close(m_lock); }

    template <class Write>
    void write(Write write) const {
        setLock(F_WRLCK);
        struct stat found {};
        zvBenchmarkRequire(stat(m_log.c_str(), &found) == 0, "The peer has no log");
        write();
        setLock(F_UNLCK);
    }

private:
    void setLock(short type) const {
        struct flock whole {};
        whole.l_type = type;
        zvBenchmarkRequire(fcntl(m_lock, F_SETLKW, &whole) == 0, "The lock cannot be had");
    }

    int m_lock;
    std::string m_log = zvBenchmarkFiles::path("peer.log");
};

}  // namespace

void zvSilentLogBenchmark() {
    useHome("");
    const log4cxx::LoggerPtr logger = peer("off");
    zvBenchmarkRow("a log call that nobody reads")
        .ours([text = zvString(message)] {
            zvLogger::getInstance()->logInfo(text, __FILE__, __LINE__);
            return 0;
        })
        .peer("log4cxx, disabled macro", "10 ns", [logger] {
            LOG4CXX_INFO(logger, message);
            return 0;
        });
}

void zvLogBenchmark() {
    useHome(ours());
    zvBenchmarkRequire(zvLogger::getInstance()->isReady(), "There is no log");
    const log4cxx::LoggerPtr logger = peer("info");
    zvBenchmarkRow("a log call that is written")
        .ours([text = zvString(message)] {
            zvLogger::getInstance()->logInfo(text, __FILE__, __LINE__);
            return 0;
        })
        .peer("log4cxx, enabled macro", "1.2",
              [logger] {
                  LOG4CXX_INFO(logger, message);
                  return 0;
              })
        .peer("log4cxx, one process at a time", "0.6", [logger, shared = std::make_shared<SharedFile>()] {
            shared->write([&logger] { LOG4CXX_INFO(logger, message); });
            return 0;
        });
}
