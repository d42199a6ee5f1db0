#ifndef ZV_LOG_FOLDER_LOCK_H
#define ZV_LOG_FOLDER_LOCK_H

#include <apr_file_io.h>
#include <log4cxx/helpers/pool.h>
#include <log4cxx/logstring.h>

#include <filesystem>

/// An advisory lock on a folder of log files, held while one of them is opened or rolled over, which log4cxx
/// does in several steps. The lock is a system lock on the file
/// "log4cxx.lock" in the folder, which only its owner may open: whoever may open it can hold the lock. It is
/// released when the process exits at the latest.
class zvLogFolderLock {
public:
    /// Opens the lock file in the folder of `logFile`. If that fails, try_lock() and unlock() do nothing,
    /// which counts as locked.
    void open(const log4cxx::LogString& logFile);

    /// Lockable by std::unique_lock with std::try_to_lock. Waits five seconds at most for another process,
    /// and after that not at all until the lock is free again. False for a lock that another one holds.
    bool try_lock();  // NOLINT(readability-identifier-naming): as std::unique_lock has it
    void unlock();

    const std::filesystem::path& path() const { return m_path; }

private:
    log4cxx::helpers::Pool m_pool;
    apr_file_t* m_pFile = nullptr;
    std::filesystem::path m_path;
    bool m_bMissed = false;  // the last time
};

#endif
