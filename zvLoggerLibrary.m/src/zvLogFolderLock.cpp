#include "zvLogFolderLock.h"

#include <apr_time.h>
#include <log4cxx/file.h>

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "zvLogPath.h"

namespace {

constexpr apr_interval_time_t longestWait = apr_time_from_sec(5);
constexpr apr_interval_time_t firstPause = 50;  // microseconds
// Many processes that wait must not keep the one busy that they wait for, and one that has waited long must
// not come after those that have not.
constexpr apr_interval_time_t longestPause = 20000;
constexpr apr_interval_time_t latePause = 1000;
constexpr apr_fileperms_t ownersAlone = APR_FPROT_UREAD | APR_FPROT_UWRITE;

}  // namespace

void zvLogFolderLock::open(const log4cxx::LogString& logFile) {
    m_path = zvLogPath::of(logFile).replace_filename("log4cxx.lock");
    log4cxx::File()
        .setPath(zvLogPath::textOf(m_path))
        .open(&m_pFile, APR_FOPEN_CREATE | APR_FOPEN_WRITE, ownersAlone, m_pool);
    // One of an earlier version. Another user's cannot be changed, and is the other user's business.
    std::error_code error;
    if (!std::filesystem::is_symlink(m_path, error)) {
        constexpr auto perms = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
        std::filesystem::permissions(m_path, perms, error);
    }
}

bool zvLogFolderLock::try_lock() {
    if (m_pFile == nullptr) {
        return true;
    }
    const auto tryOnce = [this] {
        const apr_status_t status = apr_file_lock(m_pFile, APR_FLOCK_EXCLUSIVE | APR_FLOCK_NONBLOCK);
        // A file system without locks keeps nobody from writing.
        return !APR_STATUS_IS_EAGAIN(status) && !APR_STATUS_IS_EACCES(status);
    };
    const apr_time_t end = apr_time_now() + (m_bMissed ? 0 : longestWait);
    apr_interval_time_t pause = firstPause;
    bool isLocked = tryOnce();
    while (!isLocked && apr_time_now() < end) {
        apr_sleep(pause);
        const bool isLate = end - apr_time_now() < longestWait / 2;
        pause = isLate ? latePause : std::min(2 * pause, longestPause);
        isLocked = tryOnce();
    }
    m_bMissed = !isLocked;
    return isLocked;
}

void zvLogFolderLock::unlock() {
    if (m_pFile != nullptr) {
        apr_file_unlock(m_pFile);
    }
}
