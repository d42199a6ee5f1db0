#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "zvBenchmark.h"
#include "zvBenchmarkFiles.h"
#include "zvBenchmarkSubjects.h"

namespace {

// Runs the program for one event in a new root directory and waits for it.
int runEvent(const char* program, char* option = nullptr) {
    static int roots = 0;
    const std::string root = zvBenchmarkFiles::path(std::to_string(++roots));
    mkdir(root.c_str(), 0700);
    std::string rootArgument = "RootShadowDir=" + root;
    std::string programName = program;
    std::string event = "EventName=publishLkPart";
    std::string user = "EventTriggeredByUser=somebody";
    const std::array<char*, 6> arguments = {programName.data(),  event.data(), user.data(),
                                            rootArgument.data(), option,       nullptr};
    pid_t process = 0;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    int status = -1;
    if (posix_spawn(&process, program, &actions, nullptr, arguments.data(), environ) == 0) {
        waitpid(process, &status, 0);
    }
    posix_spawn_file_actions_destroy(&actions);
    zvBenchmarkRequire(status == 0, program);
    return roots;
}

}  // namespace

void zvEventBenchmark() {
    const std::string home = zvBenchmarkFiles::path("home");
    std::filesystem::create_directories(home + "/config");
    std::ofstream(home + "/config/client-config.ini") << "local-server-url=http://127.0.0.1/\n";
    setenv("GATEWAY_HOME", home.c_str(), 1);
    const auto bare = [] { return runEvent(ZV_BARE_EVENT); };
    const auto linked = [] { return runEvent(ZV_LINKED_EVENT); };
    zvBenchmarkRow("one whole event, a program of the library's", zvBenchmarkClock::wall)
        .ours([] { return runEvent(ZV_LIBRARY_EVENT); })
        .peer("bare C, same system calls", "4", bare)
        .peer("bare C, linked with Xerces-C", "1.15", linked);
    static std::string dryRun = "--dry-run";
    zvBenchmarkRow("one whole event, zvgateway without Java", zvBenchmarkClock::wall)
        .ours([] { return runEvent(ZV_GATEWAY, dryRun.data()); })
        .peer("bare C, same system calls", "4", bare)
        .peer("bare C, linked with Xerces-C", "1.15", linked);
}
