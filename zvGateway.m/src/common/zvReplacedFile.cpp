#include "zvReplacedFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"
#include "zvProcess.h"

namespace fs = std::filesystem;

namespace {

zvProgramFailure failure(const std::string& file, const std::string& reason) {
    return {zvExitCode::usage, "output", zvConsole::printable(file.c_str()), reason};
}

// 0, or the runtime's number for what went wrong.
int writeNew(const fs::path& file, const std::string& content) {
    std::FILE* const stream = zvProcess::createFile(file);
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
    if (const zvString fault = zvDirFileUtils::getNameError(file.c_str()); !fault.empty()) {
        throw failure(file, zvConsole::printable(fault));
    }
    const fs::path path = fs::u8path(file);
    std::error_code error;
    if (fs::exists(path, error) && !fs::is_regular_file(path, error)) {
        throw failure(file, "it exists and is not a regular file");
    }
    fs::path temporary = path;
    temporary += "." + std::to_string(zvProcess::id()) + ".part";
    const int writeError = writeNew(temporary, content);
    if (writeError == 0) {
        zvProcess::replaceFile(temporary, path, error);
    } else {
        error = {writeError, std::generic_category()};
    }
    if (error) {
        if (writeError != EEXIST) {
            std::error_code ignored;
            fs::remove(temporary, ignored);
        }
        throw failure(file, zvProcess::messageOf(error));
    }
}
