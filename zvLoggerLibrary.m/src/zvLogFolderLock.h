#ifndef ZV_LOG_FOLDER_LOCK_H
#define ZV_LOG_FOLDER_LOCK_H

#include <apr_file_io.h>
#include <log4cxx/helpers/pool.h>
#include <log4cxx/logstring.h>

/// Keeps other processes from a folder of log files while a line is written.
///
/// log4cxx writes a long line in pieces, and rolls a file over by renaming it and its predecessors: no other
/// process may come in between. The lock is the system's own, on the file "log4cxx.lock" in the folder, and
/// ends with the process at the latest.
class zvLogFolderLock {
public:
    /// Names the folder: that of `logFile`. Where the lock file cannot be opened nothing is ever locked.
    void open(const log4cxx::LogString& logFile);

    /// The two ends of the lock, for std::lock_guard.
    void lock();
    void unlock();

private:
    log4cxx::helpers::Pool m_pool;
    apr_file_t* m_pFile = nullptr;
};

#endif
