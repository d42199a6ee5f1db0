#ifndef ZV_LOG_FILE_H
#define ZV_LOG_FILE_H

#include <log4cxx/fileappender.h>
#include <log4cxx/rolling/rollingfileappender.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <string>

#include "zvFileAppenders.h"
#include "zvPlatform.h"

/// A log file to which other processes append, and which they roll over, at the same time.
///
/// A line is one write to the end of the file, which the system does as a whole. Only the opening of the file
/// and its rollover, of which other processes must see nothing half done, need a zvLogFolderLock: if
/// needsLock() says so, the line is written under it between catchUp() and remember().
class zvLogFile {
public:
    /// Overrides the configuration: the file is always appended to, never truncated, and not buffered.
    explicit zvLogFile(log4cxx::FileAppenderPtr appender);

    bool belongsTo(const log4cxx::FileAppenderPtr& appender) const { return m_pAppender == appender; }
    bool isOpen() const { return m_pAppender->getWriter() != nullptr; }
    /// Why the file is not open, by the system; empty if it is, and for another reason.
    std::string openingError() const { return zvFileAppenders::openingError(*m_pAppender); }
    log4cxx::LogString path() const { return m_pAppender->getFile(); }

    /// Whether the next line opens or rolls over the file, or may do so. What another process has done to the
    /// file is noticed within a millisecond.
    bool needsLock();
    /// Synchronises the appender with the other processes: reopens the file if it was replaced, and updates
    /// the length, on which the rollover depends.
    void catchUp();
    /// Records the identity of the appender's file, which may have been rolled over.
    void remember();

private:
    bool look(zvPlatform::FileIdentity& found) const;
    bool isOwn(const zvPlatform::FileIdentity& found) const;
    void adoptLength(const zvPlatform::FileIdentity& found);
    bool isRolloverDue() const;

    log4cxx::FileAppenderPtr m_pAppender;
    std::shared_ptr<log4cxx::rolling::RollingFileAppender>
        m_pRolling;  // null for a file that is never rolled over
    std::filesystem::path m_path;
    zvPlatform::FileIdentity m_own{};
    std::size_t m_length = 0;  // before the current line
    std::chrono::steady_clock::time_point m_looked;
    bool m_bSharesLines;      // without a lock
    bool m_bSettled = false;  // opened under the lock
};

#endif
