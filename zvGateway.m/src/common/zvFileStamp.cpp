#include "zvFileStamp.h"

#include <system_error>

std::string fileStamp(const std::filesystem::path& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    if (error) {
        return "";
    }
    const auto time = std::filesystem::last_write_time(path, error);
    return error ? "" : std::to_string(size) + " " + std::to_string(time.time_since_epoch().count());
}
