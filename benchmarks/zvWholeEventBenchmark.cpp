// An event with all that a site gives it: a mapping, two files, a folder as file server, and the post.
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"

namespace {

using Arguments = std::vector<std::string>;

pid_t receiver = 0;

pid_t start(const Arguments& arguments) {
    std::vector<char*> texts;
    for (const std::string& argument : arguments) {
        texts.push_back(const_cast<char*>(argument.c_str()));
    }
    texts.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int stream : {STDOUT_FILENO, STDERR_FILENO}) {
        posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_WRONLY, 0);
    }
    pid_t process = 0;
    zvBenchmarkRequire(posix_spawnp(&process, texts.front(), &actions, nullptr, texts.data(), environ) == 0,
                       texts.front());
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

void run(const Arguments& arguments) {
    int status = -1;
    waitpid(start(arguments), &status, 0);
    zvBenchmarkRequire(status == 0, arguments.front().c_str());
}

void stopReceiver() {
    kill(receiver, SIGTERM);
    waitpid(receiver, nullptr, 0);
}

// Starts the receiver and returns its address.
std::string startReceiver() {
    const std::string inbox = zvBenchmarkFiles::path("inbox");
    receiver = start({ZV_DEMO_RECEIVER, inbox});
    std::atexit(stopReceiver);
    std::string url;
    constexpr int tries = 200;
    constexpr useconds_t pause = 50000;
    for (int i = 0; i < tries && !std::getline(std::ifstream(inbox + "/url"), url); ++i) {
        usleep(pause);
    }
    zvBenchmarkRequire(!url.empty(), "The receiver does not answer");
    return url;
}

void makeHome() {
    const std::string home = zvBenchmarkFiles::path("home");
    std::filesystem::copy(ZV_SAMPLE_HOME, home, std::filesystem::copy_options::recursive);
    std::filesystem::remove(home + "/config/log4cxx.xml");
    std::filesystem::create_directories(zvBenchmarkFiles::path("server"));
    std::ofstream(home + "/config/client-config.ini") << "local-server-url=" << startReceiver() << '\n';
    std::ofstream(home + "/config/fileserver.properties")
        << "url=file://" << zvBenchmarkFiles::path("server") << '\n';
    setenv("GATEWAY_HOME", home.c_str(), 1);
    setenv("XDG_CACHE_HOME", zvBenchmarkFiles::path("cache").c_str(), 1);
    unsetenv("CLASSPATH");
}

std::string makeAttachments() {
    const std::string list = zvBenchmarkFiles::path("attachments.xml");
    std::ofstream document(list);
    document << "<AttachmentList>\n";
    for (const char* const name : {"drawing.pdf", "model.step"}) {
        const std::string file = zvBenchmarkFiles::path(name);
        constexpr std::size_t size = 30000;
        std::ofstream(file) << std::string(size, 'x');
        document << "<Attachment><FilePath>" << file
                 << "</FilePath><ToBeDeleted>FALSE</ToBeDeleted></Attachment>\n";
    }
    document << "</AttachmentList>\n";
    return list;
}

std::string newRoot() {
    static int roots = 0;
    const std::string root = zvBenchmarkFiles::path("root" + std::to_string(++roots));
    mkdir(root.c_str(), 0700);
    std::filesystem::remove_all(zvBenchmarkFiles::path("server"));
    mkdir(zvBenchmarkFiles::path("server").c_str(), 0700);
    return root;
}

int takeEvent(const std::string& attachments) {
    run({ZV_GATEWAY, "EventName=publishLkPart", "EventTriggeredByUser=somebody", "RootShadowDir=" + newRoot(),
         "LocalType=Part", "attr.number=4711-A", "attr.rev=3", "attr.state=RELEASED",
         "AttachmentsFile=" + attachments});
    return 0;
}

int takeBareEvent() {
    run({ZV_BARE_EVENT, "RootShadowDir=" + newRoot()});
    run({"java", "-version"});
    return 0;
}

}  // namespace

void zvWholeEventBenchmark() {
    makeHome();
    const std::string attachments = makeAttachments();
    // The first one makes the archive of Java's classes.
    takeEvent(attachments);
    for (const zvBenchmarkClock clock : {zvBenchmarkClock::wall, zvBenchmarkClock::children}) {
        zvBenchmarkRow("a whole event with two files and the post", clock)
            .ours([attachments] { return takeEvent(attachments); })
            .peer("java -version and bare C, same system calls",
                  clock == zvBenchmarkClock::wall ? "1.6" : "2.0", takeBareEvent);
    }
}
