#ifndef ZV_LOG_FOLDER_LOCK_H
#define ZV_LOG_FOLDER_LOCK_H

#include <apr_file_io.h>
#include <log4cxx/helpers/pool.h>
#include <log4cxx/logstring.h>

/// An advisory lock on a folder of log files, held while a line is written.
///
/// log4cxx neither writes long lines nor rolls files over atomically. The lock is a system lock on the file
/// "log4cxx.lock" in the folder, and is released when the process exits at the latest.
class zvLogFolderLock {
public:
    /// Opens the lock file in the folder of `logFile`. If that fails, lock() and unlock() do nothing.
    void open(const log4cxx::LogString& logFile);

    /// Lockable by std::lock_guard.
    void lock();
    void unlock();

private:
    log4cxx::helpers::Pool m_pool;
    apr_file_t* m_pFile = nullptr;
};

#endif
