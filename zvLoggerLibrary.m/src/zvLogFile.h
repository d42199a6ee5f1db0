#ifndef ZV_LOG_FILE_H
#define ZV_LOG_FILE_H

#include <apr_file_info.h>
#include <log4cxx/fileappender.h>
#include <log4cxx/rolling/rollingfileappender.h>

#include <memory>
#include <string>

/// A log file that other processes write to, and roll over, at the same time.
///
/// catchUp() and remember() stand around every line, while zvLogFolderLock keeps the other processes away.
class zvLogFile {
public:
    /// From now on the file is never emptied and no line waits in memory, whatever was configured.
    explicit zvLogFile(log4cxx::FileAppenderPtr appender);

    bool belongsTo(const log4cxx::FileAppenderPtr& appender) const { return m_pAppender == appender; }
    log4cxx::LogString path() const { return m_pAppender->getFile(); }

    /// Lets the appender know what the others did: it goes on with the file that bears the name now, and
    /// counts what they wrote, so that the file is rolled over when it is due.
    void catchUp();
    /// Takes the file that the appender has open now for its own, rolled over or not.
    void remember();

private:
    bool look(apr_finfo_t& found) const;

    log4cxx::FileAppenderPtr m_pAppender;
    std::shared_ptr<log4cxx::rolling::RollingFileAppender>
        m_pRolling;  // null for a file that is never rolled over
    std::string m_path;
    apr_finfo_t m_own{};
    std::size_t m_length = 0;  // when a line was about to be written
};

#endif
