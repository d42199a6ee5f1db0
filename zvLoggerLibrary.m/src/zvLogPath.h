#ifndef ZV_LOG_PATH_H
#define ZV_LOG_PATH_H

#include <log4cxx/logstring.h>

#include <filesystem>

/// Paths of the system, and as log4cxx has them.
namespace zvLogPath {

/// The file that log4cxx opens for the name.
std::filesystem::path of(const log4cxx::LogString& name);

log4cxx::LogString textOf(const std::filesystem::path& path);

}  // namespace zvLogPath

#endif
