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
    /// Reads `path` and opens its log files. What is wrong with it goes to standard error.
    explicit zvLogConfiguration(std::filesystem::path path);
    zvLogConfiguration(const zvLogConfiguration&) = delete;
    zvLogConfiguration& operator=(const zvLogConfiguration&) = delete;
    /// Closes the appenders; what an asynchronous one still holds is written first.
    ~zvLogConfiguration();

    const std::filesystem::path& path() const { return m_path; }
    /// False when the file could not be used, or names no appender that can write.
    bool canWrite() const { return m_bCanWrite; }

    /// Writes one event, unless the logger's level forbids it. Only `file` may be null. Throws what log4cxx
    /// throws when an appender fails.
    void write(const log4cxx::LevelPtr& level, const char* loggerName, const char* message, const char* file,
               int line);

private:
    void adoptAppenders(const log4cxx::Logger& logger);
    const log4cxx::LoggerPtr& find(const char* loggerName);
    const char* keep(std::string_view source);

    std::filesystem::path m_path;
    // An asynchronous appender reads a source file's name when the caller's text may be gone.
    std::set<std::string, std::less<>> m_sources;
    // Not log4cxx's global one: that is the program's, and configures itself from whatever it finds.
    log4cxx::HierarchyPtr m_pRepository;
    std::vector<zvLogFile> m_files;
    zvLogFolderLock m_lock;
    bool m_bCanWrite = false;
    std::string m_lastName;
    log4cxx::LoggerPtr m_pLastLogger;
};

#endif
