#ifndef ZV_TEMPORARY_FOLDER_H
#define ZV_TEMPORARY_FOLDER_H

#include <filesystem>

/// A new folder in the system's folder for temporary files, removed with everything in it when the object
/// goes.
class zvTemporaryFolder {
public:
    /// Throws a std::filesystem::filesystem_error.
    zvTemporaryFolder();
    zvTemporaryFolder(const zvTemporaryFolder&) = delete;
    zvTemporaryFolder& operator=(const zvTemporaryFolder&) = delete;
    ~zvTemporaryFolder();

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

#endif
