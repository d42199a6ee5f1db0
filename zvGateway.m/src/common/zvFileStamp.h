#ifndef ZV_FILE_STAMP_H
#define ZV_FILE_STAMP_H

#include <filesystem>
#include <string>

/// The file's size and the time of its last change, by which a change of it is noticed; empty for a file that
/// is not there.
std::string fileStamp(const std::filesystem::path& path);

#endif
