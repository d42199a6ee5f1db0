#ifndef ZV_LOG_FILE_H
#define ZV_LOG_FILE_H

#include <apr_file_info.h>
#include <log4cxx/fileappender.h>

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
    bool look(apr_finfo_t& found, log4cxx::helpers::Pool& pool) const;

    log4cxx::FileAppenderPtr m_pAppender;
    apr_finfo_t m_own{};
};

#endif
