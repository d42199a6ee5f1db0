#include "zvLogFolderLock.h"

#include <log4cxx/file.h>

#include <filesystem>

void zvLogFolderLock::open(const log4cxx::LogString& logFile) {
    const auto path = std::filesystem::path(logFile).replace_filename("log4cxx.lock");
    log4cxx::File()
        .setPath(path.native())
        .open(&m_pFile, APR_FOPEN_CREATE | APR_FOPEN_WRITE, APR_FPROT_OS_DEFAULT, m_pool);
}

void zvLogFolderLock::lock() {
    if (m_pFile != nullptr) {
        apr_file_lock(m_pFile, APR_FLOCK_EXCLUSIVE);
    }
}

void zvLogFolderLock::unlock() {
    if (m_pFile != nullptr) {
        apr_file_unlock(m_pFile);
    }
}
