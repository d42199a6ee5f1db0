#ifndef ZV_LOG_FILE_H
#define ZV_LOG_FILE_H

#include <apr_file_info.h>
#include <log4cxx/fileappender.h>
#include <log4cxx/rolling/rollingfileappender.h>

#include <memory>
#include <string>

#include "zvFileAppenders.h"

/// A log file to which other processes append, and which they roll over, at the same time.
///
/// Every line is written between catchUp() and remember(), under a zvLogFolderLock.
class zvLogFile {
public:
    /// Overrides the configuration: the file is always appended to, never truncated, and not buffered.
    explicit zvLogFile(log4cxx::FileAppenderPtr appender);

    bool belongsTo(const log4cxx::FileAppenderPtr& appender) const { return m_pAppender == appender; }
    bool isOpen() const { return m_pAppender->getWriter() != nullptr; }
    /// Why the file is not open, by the system; empty if it is, and for another reason.
    std::string openingError() const { return zvFileAppenders::openingError(*m_pAppender); }
    log4cxx::LogString path() const { return m_pAppender->getFile(); }

    /// Synchronises the appender with the other processes: reopens the file if it was replaced, and updates
    /// the length, on which the rollover depends.
    void catchUp();
    /// Records the identity of the appender's file, which may have been rolled over.
    void remember();

private:
    bool look(apr_finfo_t& found) const;

    log4cxx::FileAppenderPtr m_pAppender;
    std::shared_ptr<log4cxx::rolling::RollingFileAppender>
        m_pRolling;  // null for a file that is never rolled over
    std::string m_path;
    apr_finfo_t m_own{};
    std::size_t m_length = 0;  // before the current line
};

#endif
