#include "zvLogConfiguration.h"

#include <log4cxx/file.h>
#include <log4cxx/helpers/loglog.h>
#include <log4cxx/jsonlayout.h>
#include <log4cxx/mdc.h>
#include <log4cxx/patternlayout.h>
#include <log4cxx/xml/domconfigurator.h>
#include <log4cxx/xml/xmllayout.h>

#include <algorithm>
#include <iterator>
#include <mutex>
#include <string_view>
#include <utility>

#include "zvFileAppenders.h"
#include "zvLogPath.h"
#include "zvLogText.h"
#include "zvPlatform.h"
#include "zvTextCodec.h"

using log4cxx::LoggerPtr;
using log4cxx::LogString;
using log4cxx::helpers::LogLog;
using log4cxx::spi::LocationInfo;

namespace {

// The sources of the library whose messages may hold a text of Java, which has several lines.
constexpr std::string_view javaSources[] = {"zvCommonUtils.m/src/zvC2JBridge",
                                            "zvCommonUtils.m/src/zvFSClient"};

bool holdsJavaText(std::string_view source) {
    return std::find(std::begin(javaSources), std::end(javaSources), source) != std::end(javaSources);
}

// The part after the last separator. log4cxx's own function does not handle a missing separator.
const char* shortName(const char* file) {
    const std::size_t separator = zvTextCodec::lastSeparator(file);
    return separator == std::string_view::npos ? file : file + separator + 1;
}

// No text object, which would be gone when the last lines of a process are written.
constexpr log4cxx::logchar eventIdKey[] = LOG4CXX_STR("EventId");

bool showsEventId(const log4cxx::LayoutPtr& layout) {
    if (const auto pattern = log4cxx::cast<log4cxx::PatternLayout>(layout)) {
        return pattern->getConversionPattern().find(LOG4CXX_STR("{EventId}")) != LogString::npos;
    }
    const auto xml = log4cxx::cast<log4cxx::xml::XMLLayout>(layout);
    return xml == nullptr ? log4cxx::cast<log4cxx::JSONLayout>(layout) != nullptr : xml->getProperties();
}

// The layouts stand with the appenders behind one that only passes lines on.
bool showsEventId(const log4cxx::AppenderPtr& appender) {
    if (const auto passing = log4cxx::cast<log4cxx::spi::AppenderAttachable>(appender)) {
        const log4cxx::AppenderList appenders = passing->getAllAppenders();
        return std::all_of(appenders.begin(), appenders.end(),
                           [](const log4cxx::AppenderPtr& next) { return showsEventId(next); });
    }
    return appender->getLayout() == nullptr || showsEventId(appender->getLayout());
}

// Once for a thread, and again in a process that was forked from it.
void setProcessId() {
    thread_local unsigned long known = 0;
    const unsigned long id = zvPlatform::processId();
    if (known != id) {
        log4cxx::MDC::putLS(LOG4CXX_STR("processId"), zvLogText::onOneLine(std::to_string(id)));
        known = id;
    }
}

bool isLogRequired() { return !zvPlatform::environment("GATEWAY_LOG_REQUIRED").empty(); }

}  // namespace

zvLogConfiguration::zvLogConfiguration(std::filesystem::path path)
    : m_path(std::move(path)), m_pRepository(log4cxx::Hierarchy::create()) {
    const log4cxx::File file = log4cxx::File().setPath(zvLogPath::textOf(m_path));
    const auto status = [&] {
        const zvFileAppenders appenders;
        return log4cxx::xml::DOMConfigurator().doConfigure(file, m_pRepository);
    }();
    adoptAppenders(*m_pRepository->getRootLogger());
    for (const LoggerPtr& logger : m_pRepository->getCurrentLoggers()) {
        adoptAppenders(*logger);
    }
    if (!m_files.empty()) {
        m_lock.open(m_files.front().path());
    }
    const bool isMissed = std::any_of(m_files.begin(), m_files.end(),
                                      [this](const zvLogFile& logFile) { return reportUnopenable(logFile); });
    m_bCanWrite = m_bCanWrite && !(isMissed && isLogRequired());
    if (status == log4cxx::spi::ConfigurationStatus::Configured && !m_bCanWrite && !isMissed) {
        LogLog::error(LOG4CXX_STR("No appender that can write in file [") + file.getPath() +
                      LOG4CXX_STR("]."));
    }
    // A logger without appenders may be intended: log4cxx's warning, which it writes only once, is
    // suppressed.
    LogLog::setQuietMode(true);
    m_pRepository->emitNoAppenderWarning(m_pRepository->getRootLogger().get());
    LogLog::setQuietMode(false);
}

zvLogConfiguration::~zvLogConfiguration() { m_pRepository->shutdown(); }

void zvLogConfiguration::adoptAppenders(const log4cxx::Logger& logger) {
    for (const log4cxx::AppenderPtr& appender : logger.getAllAppenders()) {
        const auto file = log4cxx::cast<log4cxx::FileAppender>(appender);
        const auto isKnown = [&file](const zvLogFile& known) { return known.belongsTo(file); };
        if (file != nullptr && std::none_of(m_files.begin(), m_files.end(), isKnown)) {
            m_files.emplace_back(file);
        }
        m_bShowsEventId = m_bShowsEventId && showsEventId(appender);
        m_bCanWrite = m_bCanWrite || file == nullptr || file->getWriter() != nullptr ||
                      !zvFileAppenders::openingError(*file).empty();
    }
}

// Once: whoever runs many events does not want to read it before each line.
bool zvLogConfiguration::reportUnopenable(const zvLogFile& logFile) {
    const std::string reason = logFile.openingError();
    if (!reason.empty() && !m_bReported) {
        m_bReported = true;
        zvLogText::complain(logFile.path() + LOG4CXX_STR(" cannot be opened: ") + zvLogText::decoded(reason));
    }
    return !reason.empty();
}

void zvLogConfiguration::reportLocked() {
    if (!m_bReportedLock) {
        m_bReportedLock = true;
        zvLogText::complain(LOG4CXX_STR("another process has ") + zvLogPath::textOf(m_lock.path()) +
                            LOG4CXX_STR(" locked for 5 s: lines are left out"));
    }
}

void zvLogConfiguration::setEventId(std::string_view eventId) {
    if (eventId.empty()) {
        LogString removed;
        log4cxx::MDC::remove(eventIdKey, removed);
    } else {
        log4cxx::MDC::putLS(eventIdKey, zvLogText::onOneLine(eventId));
    }
}

void zvLogConfiguration::write(const log4cxx::LevelPtr& level, const char* loggerName, const char* message,
                               const char* file, int line) {
    const LoggerPtr& logger = find(loggerName);
    if (!logger->isEnabledFor(level)) {
        return;
    }
    LogString text = holdsJavaText(file == nullptr ? "" : file) ? zvLogText::onIndentedLines(message)
                                                                : zvLogText::onOneLine(message);
    LogString eventId;
    if (!m_bShowsEventId && log4cxx::MDC::get(eventIdKey, eventId)) {
        text.insert(0, LOG4CXX_STR("[") + eventId + LOG4CXX_STR("] "));
    }
    const char* const source = keep(file == nullptr ? LocationInfo::NA : file);
    const LocationInfo location(source, shortName(source), LocationInfo::NA_METHOD, line);
    setProcessId();
    std::unique_lock<zvLogFolderLock> guard(m_lock, std::defer_lock);
    bool isLockNeeded = false;
    for (zvLogFile& logFile : m_files) {
        isLockNeeded = logFile.needsLock() || isLockNeeded;
    }
    if (isLockNeeded && !guard.try_lock()) {
        reportLocked();
        return;
    }
    if (isLockNeeded) {
        catchUp();
    }
    logger->forcedLogLS(level, text, location);
    for (zvLogFile& logFile : m_files) {
        logFile.remember();
    }
}

void zvLogConfiguration::catchUp() {
    for (zvLogFile& logFile : m_files) {
        logFile.catchUp();
        if (!logFile.isOpen() && !m_bReported) {
            reportUnopenable(logFile);
        }
    }
}

const char* zvLogConfiguration::keep(std::string_view source) {
    auto kept = m_sources.find(source);
    if (kept == m_sources.end()) {
        kept = m_sources.emplace(source).first;
    }
    return kept->c_str();
}

// Caches the last logger: most lines come from the same one as the line before.
const LoggerPtr& zvLogConfiguration::find(const char* loggerName) {
    if (m_pLastLogger == nullptr || m_lastName != loggerName) {
        m_pLastLogger = m_pRepository->getLogger(zvLogText::onOneLine(loggerName));
        m_lastName = loggerName;
    }
    return m_pLastLogger;
}
