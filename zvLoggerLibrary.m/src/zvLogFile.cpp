#include "zvLogFile.h"

#include <apr_file_io.h>
#include <log4cxx/file.h>
#include <log4cxx/rolling/rollingfileappender.h>

#include <utility>

using log4cxx::FileAppender;
using log4cxx::helpers::Pool;
using log4cxx::rolling::RollingFileAppender;

zvLogFile::zvLogFile(log4cxx::FileAppenderPtr appender) : m_pAppender(std::move(appender)) {
    // Without a writer when another process made the folder at the same moment: the second try finds it.
    if (!m_pAppender->getAppend() || m_pAppender->getBufferedIO() || m_pAppender->getWriter() == nullptr) {
        m_pAppender->setAppend(true);
        m_pAppender->setBufferedIO(false);
        // The base class's: it opens the file and leaves the rollover policy alone.
        Pool pool;
        m_pAppender->FileAppender::activateOptions(pool);
    }
    remember();
}

void zvLogFile::catchUp() {
    Pool pool;
    apr_finfo_t found{};
    if (!look(found, pool) || found.inode != m_own.inode || found.device != m_own.device) {
        m_pAppender->activateOptions(pool);
    } else if (const auto rolling = log4cxx::cast<RollingFileAppender>(m_pAppender)) {
        rolling->incrementFileLength(static_cast<std::size_t>(found.size) - rolling->getFileLength());
    }
}

void zvLogFile::remember() {
    Pool pool;
    look(m_own, pool);
}

bool zvLogFile::look(apr_finfo_t& found, Pool& pool) const {
    apr_file_t* file = nullptr;
    return log4cxx::File().setPath(path()).open(&file, APR_FOPEN_WRITE, 0, pool) == APR_SUCCESS &&
           apr_file_info_get(&found, APR_FINFO_IDENT | APR_FINFO_SIZE, file) == APR_SUCCESS;
}
