#include <dlfcn.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvDirFileUtils.h"
#include "zvNativePath.h"
#include "zvProcess.h"

std::filesystem::path toNativePath(const zvString& path) {
    return zvCharString(zvDirFileUtils::nativePath(path)).data();
}

std::vector<std::string> zvProcess::takeArguments(int argc, char** argv) {
    zvCommonUtils::adoptUserLocale();
    return {argv + (argc > 0 ? 1 : 0), argv + argc};
}

void zvProcess::write(std::FILE* stream, const std::string& text) { std::fputs(text.c_str(), stream); }

void zvProcess::end(int exitCode) { std::exit(exitCode); }

void zvProcess::endAtOnce(int exitCode) {
    std::fflush(nullptr);
    std::_Exit(exitCode);
}

std::string zvProcess::messageOf(const std::error_code& error) { return error.message(); }

unsigned long zvProcess::id() { return static_cast<unsigned long>(::getpid()); }

std::filesystem::path zvProcess::programFile() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

// Looked for where the library's own calls go.
zvProcess::Function zvProcess::findLoggerFunction(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_DEFAULT, name));
}

void zvProcess::setEnvironment(const char* name, const char* value) { ::setenv(name, value, 1); }

namespace {

constexpr mode_t newFileMode = 0666;  // as the process's umask has it

std::error_code lastError() { return {errno, std::generic_category()}; }

// -1 and the reason for a link and for what is no regular file. A pipe opens without waiting for its other
// end.
int openRegular(const std::filesystem::path& file, int flags, std::error_code& error) {
    const int descriptor = ::open(file.c_str(), flags | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, newFileMode);
    struct stat status {};
    error = descriptor < 0 || ::fstat(descriptor, &status) != 0 ? lastError() : std::error_code();
    if (!error && !S_ISREG(status.st_mode)) {
        error = std::make_error_code(std::errc::invalid_argument);
    }
    if (error && descriptor >= 0) {
        ::close(descriptor);
    }
    return error ? -1 : descriptor;
}

}  // namespace

// Of the open file and not of the process, as a thread's or a library's other lock would be.
zvProcess::Lock zvProcess::FileLock::take(const std::filesystem::path& file, std::error_code& error) {
    const int descriptor = openRegular(file, O_RDWR | O_CREAT, error);
    if (descriptor < 0) {
        return Lock::refused;
    }
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    if (::fcntl(descriptor, F_OFD_SETLK, &whole) == 0) {
        m_handle = descriptor;
        return Lock::taken;
    }
    error = lastError();
    ::close(descriptor);
    return error.value() == EAGAIN || error.value() == EACCES ? Lock::heldByAnother : Lock::refused;
}

zvProcess::FileLock::~FileLock() { release(); }

void zvProcess::FileLock::release() {
    if (m_handle >= 0) {
        ::close(static_cast<int>(m_handle));
        m_handle = -1;
    }
}

// Asks without taking it, which would keep off an event that begins at this moment.
bool zvProcess::isLocked(const std::filesystem::path& file) {
    std::error_code error;
    const int descriptor = openRegular(file, O_RDONLY, error);
    if (descriptor < 0) {
        return false;
    }
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    const bool isHeld = ::fcntl(descriptor, F_OFD_GETLK, &whole) == 0 && whole.l_type != F_UNLCK;
    ::close(descriptor);
    return isHeld;
}

namespace {

// Starts the program with nothing of this process but its environment: no stream, no open file, no handler.
pid_t start(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
    std::vector<char*> texts{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) {
        texts.push_back(const_cast<char*>(argument.c_str()));
    }
    texts.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        ::posix_spawn_file_actions_addopen(&actions, stream, "/dev/null", O_RDWR, 0);
    }
    ::posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    pid_t process = -1;
    const int error = ::posix_spawn(&process, program.c_str(), &actions, nullptr, texts.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    return error == 0 ? process : -1;
}

}  // namespace

bool zvProcess::run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                    std::chrono::milliseconds limit) {
    constexpr std::chrono::milliseconds pause(10);
    const pid_t process = start(program, arguments);
    const auto end = std::chrono::steady_clock::now() + limit;
    int status = -1;
    pid_t ended = process < 0 ? process : 0;
    while (ended == 0) {
        if (std::chrono::steady_clock::now() >= end || notedSignal() != 0) {
            ::kill(process, SIGKILL);
            ended = ::waitpid(process, &status, 0);
        } else if ((ended = ::waitpid(process, &status, WNOHANG)) == 0) {
            waitFor(pause);
        }
    }
    return ended == process && process > 0 && status == 0;
}

std::int64_t zvProcess::toSeconds(std::tm utc) { return ::timegm(&utc); }

std::string zvProcess::hostName() {
    std::array<char, 256> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

std::error_code zvProcess::appendToFile(const std::filesystem::path& file, const std::string& text,
                                        bool isDurable) {
    std::error_code error;
    const int descriptor = openRegular(file, O_WRONLY | O_APPEND | O_CREAT, error);
    for (std::size_t written = 0; written < text.size() && !error;) {
        const ssize_t count = ::write(descriptor, text.data() + written, text.size() - written);
        if (count >= 0) {
            written += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            error = lastError();
        }
    }
    if (!error && isDurable && ::fdatasync(descriptor) != 0) {
        error = lastError();
    }
    if (descriptor >= 0 && ::close(descriptor) != 0 && !error) {
        error = lastError();
    }
    return error;
}

std::FILE* zvProcess::createFile(const std::filesystem::path& file) {
    return std::fopen(file.c_str(), "wbx");
}

void zvProcess::replaceFile(const std::filesystem::path& from, const std::filesystem::path& to,
                            std::error_code& error) {
    std::filesystem::rename(from, to, error);
}

void zvProcess::copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
                         std::error_code& error) {
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
}

std::filesystem::file_status zvProcess::statusOf(const std::filesystem::path& path, std::error_code& error) {
    return std::filesystem::symlink_status(path, error);
}

void zvProcess::removeTree(const std::filesystem::path& path, std::error_code& error) {
    std::filesystem::remove_all(path, error);
}

int zvProcess::openForReading(const std::filesystem::path& file, std::error_code& error) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    error = {descriptor < 0 ? errno : 0, std::generic_category()};
    return descriptor;
}

int zvProcess::openRegularFile(const std::filesystem::path& file, std::error_code& error) {
    return openRegular(file, O_RDONLY, error);
}

bool zvProcess::isPrivate(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && status.st_uid == ::geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

bool zvProcess::makePrivateFolder(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::create_directories(folder.parent_path(), ignored);
    ::mkdir(folder.c_str(), S_IRWXU);
    struct stat status {};
    return ::lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

long zvProcess::readSome(int descriptor, char* block, std::size_t size) {
    return static_cast<long>(::read(descriptor, block, size));
}

void zvProcess::close(int descriptor) { ::close(descriptor); }

zvProcess::NewFileRights::NewFileRights(int mask) {
    if (mask >= 0) {
        m_before = static_cast<int>(::umask(static_cast<mode_t>(mask)));
    }
}

zvProcess::NewFileRights::~NewFileRights() {
    if (m_before >= 0) {
        ::umask(static_cast<mode_t>(m_before));
    }
}

void zvProcess::reportFullFiles() { std::signal(SIGXFSZ, SIG_IGN); }

std::FILE* zvProcess::reserveStandardOutput() {
    std::fflush(stdout);
    const int reserved = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    std::FILE* const stream = reserved < 0 ? nullptr : ::fdopen(reserved, "w");
    if (stream == nullptr || ::dup2(STDERR_FILENO, STDOUT_FILENO) < 0) {
        return nullptr;
    }
    return stream;
}

std::size_t zvProcess::terminalColumns(std::FILE* stream) {
    constexpr std::size_t usualColumns = 80;
    struct winsize size {};
    if (::isatty(::fileno(stream)) == 0) {
        return 0;
    }
    const bool isKnown = ::ioctl(::fileno(stream), TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : usualColumns;
}

namespace {

struct EndingSignal {
    int number;
    bool isNoted;
};
std::array<EndingSignal, 3> endingSignals = {{{SIGINT, false}, {SIGTERM, false}, {SIGHUP, false}}};
std::atomic<int> noted{0};
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler may use nothing else");

void note(int signal) {
    if (noted.exchange(signal) != 0) {
        ::_exit(128 + signal);
    }
}

void setHandler(int signal, void (*handler)(int)) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

void setHandlers(void (*handler)(int)) {
    for (const EndingSignal& signal : endingSignals) {
        if (signal.isNoted) {
            setHandler(signal.number, handler);
        }
    }
}

void setMask(int how) {
    sigset_t set;
    sigemptyset(&set);
    for (const EndingSignal& signal : endingSignals) {
        sigaddset(&set, signal.number);
    }
    ::pthread_sigmask(how, &set, nullptr);
}

}  // namespace

void zvProcess::noteSignals() {
    for (EndingSignal& signal : endingSignals) {
        struct sigaction action {};
        // A signal that the parent process ignores, as nohup does, stays ignored.
        signal.isNoted = ::sigaction(signal.number, nullptr, &action) == 0 && action.sa_handler != SIG_IGN;
    }
    setHandlers(note);
}

// A Java machine leaves alone what is ignored when it starts. A signal that comes then waits for this thread,
// unless one of the machine's own has dropped it.
zvProcess::SignalsUntouched::SignalsUntouched() {
    setMask(SIG_BLOCK);
    setHandlers(SIG_IGN);
}

zvProcess::SignalsUntouched::~SignalsUntouched() {
    setHandlers(note);
    setMask(SIG_UNBLOCK);
}

std::vector<std::string> zvProcess::signalOptions() { return {}; }

int zvProcess::notedSignal() { return noted; }
