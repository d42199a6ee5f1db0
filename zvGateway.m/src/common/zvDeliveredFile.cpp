#include "zvDeliveredFile.h"

#include <filesystem>
#include <system_error>

#include "zvProcess.h"

namespace fs = std::filesystem;

std::string findDeliveredFile(const char* installed, const char* built) {
    const fs::path folder = zvProcess::programFile().parent_path();
    for (const char* const file : {installed, built}) {
        std::error_code error;
        const fs::path path = fs::canonical(folder / file, error);
        if (!error) {
            return path.string();
        }
    }
    return {};
}
