#include "zvReplacedFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "zvConsole.h"
#include "zvPlatform.h"
#include "zvStepFailure.h"

namespace fs = std::filesystem;

namespace {

zvStepFailure failure(const std::string& file, const std::string& reason) {
    return {zvExitCode::usage, "output", zvConsole::printable(file.c_str()), reason};
}

// 0, or the runtime's number for what went wrong.
int writeNew(const std::string& file, const std::string& content) {
    std::FILE* const stream = std::fopen(file.c_str(), "wbx");
    if (stream == nullptr) {
        return errno;
    }
    const bool isWritten = std::fwrite(content.data(), 1, content.size(), stream) == content.size();
    const int writeError = errno;
    const bool isClosed = std::fclose(stream) == 0;
    return !isWritten ? writeError : !isClosed ? errno : 0;
}

}  // namespace

void zvReplacedFile::write(const std::string& file, const std::string& content) {
    std::error_code error;
    if (fs::exists(file, error) && !fs::is_regular_file(file, error)) {
        throw failure(file, "it is there already, and is no file that can be replaced");
    }
    const std::string beside = file + "." + std::to_string(zvPlatform::processId()) + ".part";
    const int writeError = writeNew(beside, content);
    if (writeError == 0) {
        fs::rename(beside, file, error);
    } else {
        error = {writeError, std::generic_category()};
    }
    if (error) {
        if (writeError != EEXIST) {
            std::remove(beside.c_str());
        }
        throw failure(file, error.message());
    }
}
