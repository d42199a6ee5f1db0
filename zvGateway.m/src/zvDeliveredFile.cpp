#include "zvDeliveredFile.h"

#include <filesystem>
#include <system_error>

#include "zvPlatform.h"

namespace fs = std::filesystem;

std::string zvDeliveredFile(const char* installed, const char* built) {
    const fs::path folder = zvPlatform::pathOf(zvPlatform::programPath()).parent_path();
    for (const char* const file : {installed, built}) {
        std::error_code error;
        const fs::path path = fs::canonical(folder / file, error);
        if (!error) {
            return zvPlatform::textOf(path);
        }
    }
    return {};
}
