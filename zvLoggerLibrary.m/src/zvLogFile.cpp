#include "zvLogFile.h"

#include <log4cxx/helpers/pool.h>
#include <log4cxx/helpers/transcoder.h>

#include <utility>

using log4cxx::FileAppender;
using log4cxx::helpers::Pool;
using log4cxx::rolling::RollingFileAppender;

zvLogFile::zvLogFile(log4cxx::FileAppenderPtr appender)
    : m_pAppender(std::move(appender)), m_pRolling(log4cxx::cast<RollingFileAppender>(m_pAppender)) {
    // There is no writer if another process won the race to create the folder: the retry finds it.
    if (!m_pAppender->getAppend() || m_pAppender->getBufferedIO() || m_pAppender->getWriter() == nullptr) {
        m_pAppender->setAppend(true);
        m_pAppender->setBufferedIO(false);
        // The base class's version opens the file without initialising the rollover policy again.
        Pool pool;
        if (openingError().empty()) {
            m_pAppender->FileAppender::activateOptions(pool);
        }
    }
    log4cxx::helpers::Transcoder::encode(path(), m_path);
    look(m_own);
}

void zvLogFile::catchUp() {
    apr_finfo_t found{};
    if (!look(found) || found.inode != m_own.inode || found.device != m_own.device) {
        Pool pool;
        m_pAppender->activateOptions(pool);
        look(m_own);
    } else if (m_pRolling != nullptr) {
        m_pRolling->incrementFileLength(static_cast<std::size_t>(found.size) - m_pRolling->getFileLength());
    }
    m_length = m_pRolling == nullptr ? 0 : m_pRolling->getFileLength();
}

// A file that was rolled over is shorter. A rollover that this misses only makes catchUp() reopen the file.
void zvLogFile::remember() {
    if (m_pRolling != nullptr && m_pRolling->getFileLength() < m_length) {
        look(m_own);
    }
}

bool zvLogFile::look(apr_finfo_t& found) const {
    Pool pool;
    return apr_stat(&found, m_path.c_str(), APR_FINFO_IDENT | APR_FINFO_SIZE, pool.getAPRPool()) ==
           APR_SUCCESS;
}
