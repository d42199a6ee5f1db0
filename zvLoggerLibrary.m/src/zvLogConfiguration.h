#ifndef ZV_LOG_CONFIGURATION_H
#define ZV_LOG_CONFIGURATION_H

#include <log4cxx/hierarchy.h>
#include <log4cxx/level.h>
#include <log4cxx/logger.h>

#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "zvLogFile.h"
#include "zvLogFolderLock.h"

/// The loggers and appenders of one log4cxx configuration file.
class zvLogConfiguration {
public:
    /// Parses the file `path` and opens its log files. Errors are written to standard error; of log files
    /// that cannot be opened the first one, in one line.
    explicit zvLogConfiguration(std::filesystem::path path);
    zvLogConfiguration(const zvLogConfiguration&) = delete;
    zvLogConfiguration& operator=(const zvLogConfiguration&) = delete;
    /// Closes the appenders; asynchronous ones are flushed first.
    ~zvLogConfiguration();

    const std::filesystem::path& path() const { return m_path; }
    /// False if the file is invalid or has no appender, and, when the environment says that the log is
    /// required, if one of its log files cannot be opened.
    bool canWrite() const { return m_bCanWrite; }

    /// The identity of the event that the calling thread works on; empty for none.
    static void setEventId(std::string_view eventId);

    /// Writes one event if the logger's level allows it. It is left out, which is told once, when another
    /// process does not free the log's lock. Only `file` may be null. Throws log4cxx's exception
    /// if an appender fails.
    void write(const log4cxx::LevelPtr& level, const char* loggerName, const char* message, const char* file,
               int line);

private:
    void adoptAppenders(const log4cxx::Logger& logger);
    bool reportUnopenable(const zvLogFile& logFile);
    void reportLocked();
    void catchUp();
    const log4cxx::LoggerPtr& find(const char* loggerName);
    const char* keep(std::string_view source);

    std::filesystem::path m_path;
    // Source file names are kept: an asynchronous appender reads them when the caller's pointer may dangle.
    std::set<std::string, std::less<>> m_sources;
    // Not log4cxx's global repository, which belongs to the program and configures itself by default.
    log4cxx::HierarchyPtr m_pRepository;
    std::vector<zvLogFile> m_files;
    zvLogFolderLock m_lock;
    bool m_bCanWrite = false;
    bool m_bShowsEventId = true;  // by the layout of every appender
    bool m_bReported = false;
    bool m_bReportedLock = false;
    std::string m_lastName;
    log4cxx::LoggerPtr m_pLastLogger;
};

#endif
