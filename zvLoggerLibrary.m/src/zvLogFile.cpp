#include "zvLogFile.h"

#include <log4cxx/helpers/pool.h>
#include <log4cxx/rolling/rollingpolicybase.h>
#include <log4cxx/rolling/sizebasedtriggeringpolicy.h>
#include <log4cxx/rolling/timebasedrollingpolicy.h>

#include <chrono>
#include <utility>

#include "zvLogPath.h"

using log4cxx::FileAppender;
using log4cxx::helpers::Pool;
using log4cxx::rolling::RollingFileAppender;

namespace {

bool endsIn(const log4cxx::LogString& text, const log4cxx::LogString& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

// Another process may roll the file over just before a line, which is then in the older file. There it gets
// lost if that is being compressed; and what is no known trigger wants to see each line.
bool canShareLines(const RollingFileAppender& appender) {
    const auto trigger = appender.getTriggeringPolicy();
    const auto policy = log4cxx::cast<log4cxx::rolling::RollingPolicyBase>(appender.getRollingPolicy());
    const bool isKnown = log4cxx::cast<log4cxx::rolling::SizeBasedTriggeringPolicy>(trigger) != nullptr ||
                         log4cxx::cast<log4cxx::rolling::TimeBasedRollingPolicy>(trigger) != nullptr;
    return isKnown && policy != nullptr && !endsIn(policy->getFileNamePattern(), LOG4CXX_STR(".gz")) &&
           !endsIn(policy->getFileNamePattern(), LOG4CXX_STR(".zip"));
}

}  // namespace

zvLogFile::zvLogFile(log4cxx::FileAppenderPtr appender)
    : m_pAppender(std::move(appender)),
      m_pRolling(log4cxx::cast<RollingFileAppender>(m_pAppender)),
      m_bSharesLines(m_pRolling == nullptr || canShareLines(*m_pRolling)) {
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
    m_pAppender->setImmediateFlush(true);
    m_path = zvLogPath::of(path());
    look(m_own);
}

bool zvLogFile::needsLock() {
    if (!m_bSharesLines || !m_bSettled) {
        return true;
    }
    // Looking costs as much as writing: lines that follow one another at once share a look.
    constexpr std::chrono::milliseconds validity(1);
    const auto now = std::chrono::steady_clock::now();
    if (now - m_looked >= validity) {
        zvPlatform::FileIdentity found{};
        if (!look(found) || !isOwn(found)) {
            return true;
        }
        adoptLength(found);
        m_looked = now;
    }
    return isRolloverDue();
}

void zvLogFile::catchUp() {
    zvPlatform::FileIdentity found{};
    if (!look(found) || !isOwn(found)) {
        Pool pool;
        m_pAppender->activateOptions(pool);
        look(m_own);
    } else {
        adoptLength(found);
    }
    m_bSettled = isOpen();
    m_length = m_pRolling == nullptr ? 0 : m_pRolling->getFileLength();
}

// A file that was rolled over is shorter. A rollover that this misses only makes catchUp() reopen the file.
void zvLogFile::remember() {
    if (m_pRolling != nullptr && m_pRolling->getFileLength() < m_length) {
        look(m_own);
    }
}

bool zvLogFile::look(zvPlatform::FileIdentity& found) const { return zvPlatform::identify(m_path, found); }

bool zvLogFile::isOwn(const zvPlatform::FileIdentity& found) const {
    return found.number == m_own.number && found.device == m_own.device;
}

void zvLogFile::adoptLength(const zvPlatform::FileIdentity& found) {
    if (m_pRolling != nullptr) {
        m_pRolling->incrementFileLength(static_cast<std::size_t>(found.size) - m_pRolling->getFileLength());
    }
}

bool zvLogFile::isRolloverDue() const {
    return m_pRolling != nullptr && m_pRolling->getTriggeringPolicy()->isTriggeringEvent(
                                        m_pRolling.get(), {}, path(), m_pRolling->getFileLength());
}
