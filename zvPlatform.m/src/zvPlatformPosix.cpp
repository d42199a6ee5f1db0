#include <dlfcn.h>
#include <fcntl.h>
#include <langinfo.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#if __has_include(<linux/openat2.h>)
#include <linux/openat2.h>
#endif

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "zvPlatform.h"
#include "zvPlatformCommon.h"
#include "zvTextCodec.h"

namespace zvPlatform {
namespace {

// Not errno itself, which a log line written in between would overwrite.
thread_local int lastFailure = 0;

bool succeeded(bool success) {
    if (!success) {
        lastFailure = errno;
    }
    return success;
}

constexpr mode_t directoryMode = 0777;
constexpr mode_t fileMode = 0666;

// Descriptor 0 is valid, handle 0 is not.
Handle handleOf(int descriptor) { return descriptor < 0 ? refusedHandle : Handle{descriptor} + 1; }
int descriptorOf(Handle handle) { return handle == refusedHandle ? -1 : static_cast<int>(handle - 1); }

// A pipe in the place of a file is not waited for.
constexpr int forReading = O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK;

// Null for anything but a regular file, which is closed.
File regularFile(int descriptor) {
    struct stat status {};
    const bool isRegular = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    File file(isRegular ? ::fdopen(descriptor, "rb") : nullptr);
    if (file == nullptr && descriptor >= 0) {
        ::close(descriptor);
    }
    return file;
}

// Fails with ENOSYS or EPERM, the latter in containers, where the kernel cannot do it in one step.
int openBeneath(int directory, const std::string& path) {
#if defined(SYS_openat2) && defined(RESOLVE_BENEATH)
    struct open_how how {};
    how.flags = forReading;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_SYMLINKS;
    return static_cast<int>(::syscall(SYS_openat2, directory, path.c_str(), &how, sizeof(how)));
#else
    static_cast<void>(directory);
    static_cast<void>(path);
    errno = ENOSYS;
    return -1;
#endif
}

void turnSeparators(std::string& path) {
    std::size_t at = zvTextCodec::nextSeparator(path, 0);
    while (at != std::string::npos) {
        path[at] = '/';
        at = zvTextCodec::nextSeparator(path, at + 1);
    }
}

// Empty, with errno set, for a path that cannot be encoded in the locale: no system call accepts an empty
// path.
std::string nativePath(const wchar16* path) {
    std::size_t length = 0;
    while (path[length] != 0) {
        ++length;
    }
    const std::size_t bytes = zvTextCodec::narrowLength(path, length);
    if (bytes == zvTextCodec::unconvertible) {
        errno = EILSEQ;
        return {};
    }
    std::string narrow(bytes, '\0');
    zvTextCodec::narrow(path, length, narrow.data());
    turnSeparators(narrow);
    return narrow;
}

// Splits as the Windows command shell does: at blanks outside double quotes.
std::vector<std::string> splitArguments(const char* arguments) {
    std::vector<std::string> paths;
    bool quoted = false;
    bool open = false;
    for (const char* c = arguments; *c != '\0'; ++c) {
        if (!quoted && (*c == ' ' || *c == '\t')) {
            open = false;
            continue;
        }
        if (!open) {
            paths.emplace_back();
            open = true;
        }
        if (*c == '"') {
            quoted = !quoted;
        } else {
            paths.back() += *c;
        }
    }
    return paths;
}

// A symlink to a directory is removed itself; its target stays. A path that ends in "." or ".." is refused:
// the system would empty that folder, and then not remove it.
bool removeDirectory(const std::string& path) {
    std::error_code error;
    std::filesystem::path directory(path);
    if (!directory.has_filename()) {
        directory = directory.parent_path();
    }
    if (directory.filename() == "." || directory.filename() == ".." ||
        !std::filesystem::is_directory(path, error)) {
        return false;
    }
    std::filesystem::remove_all(directory, error);
    return !error;
}

}  // namespace

std::string nativePath(const char* path) {
    std::string native(path);
    turnSeparators(native);
    return native;
}

std::filesystem::path pathOf(const std::string& path) { return nativePath(path.c_str()); }

std::string textOf(const std::filesystem::path& path) { return path.string(); }

std::string textForLibraries(const std::string& text) { return text; }

std::string nameFault(const std::string&) { return {}; }

unsigned long lastError() { return static_cast<unsigned long>(lastFailure); }

std::string errorText(unsigned long error) {
    return std::generic_category().message(static_cast<int>(error));
}

bool createDirectory(const wchar16* path) {
    const std::string native = nativePath(path);
    return succeeded(!native.empty() && ::mkdir(native.c_str(), directoryMode) == 0);
}

bool wasNameTaken() { return lastFailure == EEXIST; }

Handle createFile(const wchar16* path) {
    const std::string native = nativePath(path);
    const int descriptor =
        native.empty() ? -1 : ::open(native.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileMode);
    succeeded(descriptor >= 0);
    return handleOf(descriptor);
}

bool closeHandle(Handle handle) {
    return handle != refusedHandle && succeeded(::close(descriptorOf(handle)) == 0);
}

bool isAccessible(const char* path, int mode) { return accessError(path, mode) == 0; }

unsigned long accessError(const char* path, int mode) {
    if (!isAccessMode(mode)) {
        return EINVAL;
    }
    return ::access(nativePath(path).c_str(), mode) == 0 ? 0 : static_cast<unsigned long>(errno);
}

File openForReading(const char* path) {
    File file(std::fopen(nativePath(path).c_str(), "re"));
    struct stat status {};
    const bool isDirectory =
        file != nullptr && ::fstat(::fileno(file.get()), &status) == 0 && S_ISDIR(status.st_mode);
    return isDirectory ? nullptr : std::move(file);
}

File openBytes(const std::filesystem::path& path) { return regularFile(::open(path.c_str(), forReading)); }

File openForWriting(const char* path) { return File(std::fopen(nativePath(path).c_str(), "wb")); }

Handle openDirectory(const std::filesystem::path& path) {
    return handleOf(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
}

File openStepByStep(Handle directory, const std::filesystem::path& path) {
    int at = descriptorOf(directory);
    for (auto name = path.begin(); name != path.end() && at >= 0; ++name) {
        const int flags = std::next(name) == path.end() ? forReading : O_PATH | O_DIRECTORY | O_CLOEXEC;
        const bool isBelow = !name->empty() && *name != ".." && !name->is_absolute();
        const int next = isBelow ? ::openat(at, name->c_str(), flags | O_NOFOLLOW) : -1;
        if (name != path.begin()) {
            ::close(at);
        }
        at = next;
    }
    return path.empty() ? nullptr : regularFile(at);
}

File openBelow(Handle directory, const std::filesystem::path& path) {
    const int descriptor = openBeneath(descriptorOf(directory), path.string());
    const bool isUnknown = descriptor < 0 && (errno == ENOSYS || errno == EPERM);
    return isUnknown ? openStepByStep(directory, path) : regularFile(descriptor);
}

bool removeFile(const char* path) { return ::unlink(nativePath(path).c_str()) == 0; }

bool removeTree(const char* arguments) {
    if (*arguments != ' ' && *arguments != '\t') {
        return false;
    }
    const std::vector<std::string> paths = splitArguments(arguments);
    bool removed = !paths.empty();
    for (const std::string& path : paths) {
        removed = removeDirectory(nativePath(path.c_str())) && removed;
    }
    return removed;
}

void* loadLibrary(const char* name) {
    const std::string path = nativePath(name);
    if (path.empty()) {
        return nullptr;
    }
    void* const library = ::dlopen(path.c_str(), RTLD_NOW);
    if (library != nullptr || path.find('/') != std::string::npos) {
        return library;
    }
    // A bare name such as "jvm" gets this system's prefix and suffix for libraries.
    return ::dlopen(("lib" + path + ".so").c_str(), RTLD_NOW);
}

void* findFunction(void* library, const char* name) {
    return library == nullptr ? nullptr : ::dlsym(library, name);
}

bool identify(const std::filesystem::path& path, FileIdentity& found) {
    struct statx status {};
    if (::statx(AT_FDCWD, path.c_str(), 0, STATX_INO | STATX_SIZE, &status) != 0) {
        return false;
    }
    constexpr unsigned bitsOfMinor = 32;
    found.device = (std::uint64_t{status.stx_dev_major} << bitsOfMinor) | status.stx_dev_minor;
    found.number = status.stx_ino;
    found.size = status.stx_size;
    return true;
}

std::string libraryOf(void* function) {
    Dl_info found{};
    return function != nullptr && ::dladdr(function, &found) != 0 ? found.dli_fname : "";
}

void complain(const std::string& text) { std::fputs(text.c_str(), stderr); }

std::string environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

void setEnvironment(const char* name, const char* value) { ::setenv(name, value, 1); }

void adoptUserLocale() {
    if (std::setlocale(LC_ALL, "") == nullptr) {
        // The system may have the encoding, and lack the locale of another category.
        std::setlocale(LC_CTYPE, "");
    }
    const std::string characters = std::setlocale(LC_CTYPE, nullptr);
    if (characters == "C" || characters == "POSIX") {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
    std::setlocale(LC_NUMERIC, "C");
}

void adoptUtf8() {
    adoptUserLocale();
    zvTextCodec::adoptUtf8();
}

const char* decimalPoint() { return nl_langinfo(RADIXCHAR); }

unsigned long processId() { return static_cast<unsigned long>(::getpid()); }

bool areOtherThreadsStopped() { return false; }

void sleep(unsigned long milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

zvInt64 currentTime() { return std::time(nullptr); }

bool toLocalTime(zvInt64 seconds, std::tm& out) {
    const auto time = static_cast<std::time_t>(seconds);
    return isTellable(seconds) && ::localtime_r(&time, &out) != nullptr;
}

zvInt64 fromLocalTime(std::tm local) {
    local.tm_isdst = -1;
    const zvInt64 seconds = std::mktime(&local);
    return isTellable(seconds) ? seconds : -1;
}

std::string timeText(zvInt64 seconds) {
    constexpr std::size_t longestText = 26;
    char text[longestText + 1] = {};
    const auto time = static_cast<std::time_t>(seconds);
    return ::ctime_r(&time, text) != nullptr ? text : "";
}

}  // namespace zvPlatform
