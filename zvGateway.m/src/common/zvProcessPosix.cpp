#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>

#include "zvCharString.h"
#include "zvDirFileUtils.h"
#include "zvNativePath.h"
#include "zvProcess.h"

std::filesystem::path toNativePath(const zvString& path) {
    return zvCharString(zvDirFileUtils::nativePath(path)).data();
}

unsigned long zvProcess::id() { return static_cast<unsigned long>(::getpid()); }

std::filesystem::path zvProcess::programFile() {
    std::error_code error;
    return std::filesystem::read_symlink("/proc/self/exe", error);
}

void zvProcess::setEnvironment(const char* name, const char* value) { ::setenv(name, value, 1); }

zvProcess::Lock zvProcess::lockFile(const std::filesystem::path& file, std::error_code& error) {
    constexpr mode_t mode = 0666;
    // The descriptor stays open, and with it the lock.
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, mode);
    if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
        return Lock::taken;
    }
    error = {errno, std::generic_category()};
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return error.value() == EWOULDBLOCK ? Lock::heldByAnother : Lock::refused;
}
