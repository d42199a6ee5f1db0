#include "zvHomeFile.h"

#include <filesystem>
#include <map>
#include <sstream>
#include <system_error>

#include "zvCommonUtils.h"
#include "zvFileStamp.h"
#include "zvNativePath.h"
#include "zvProcess.h"

namespace {

// More than a file that people write has.
constexpr std::size_t longest = 10'000'000;

}  // namespace

std::string zvHomeFile::read(const zvString& path, std::string& error) {
    const std::filesystem::path file = toNativePath(path);
    std::string content;
    std::error_code code;
    if (std::filesystem::exists(file, code) && !std::filesystem::is_regular_file(file, code)) {
        error = "it is no regular file";
        return content;
    }
    const int descriptor = zvProcess::openForReading(file, code);
    if (!code) {
        code = zvProcess::readToEnd(descriptor, longest, content);
    }
    error = code ? zvProcess::messageOf(code) : "";
    return content;
}

std::string zvHomeFile::readConfiguration(const char* name) {
    // Without a home, getConfigurationFile() says on standard output that there is none.
    const zvString home = zvCommonUtils::getEnvironmentalVariable(zvCommonUtils::getGatewayHomeEnvVariable());
    if (home.empty()) {
        return {};
    }
    struct Kept {
        std::string stamp;
        std::string content;
    };
    static std::map<std::filesystem::path, Kept> all;
    const zvString file = zvCommonUtils::getConfigurationFile(name);
    const std::filesystem::path path = toNativePath(file);
    const std::string stamp = fileStamp(path);
    Kept& kept = all[path];
    if (stamp.empty() || stamp != kept.stamp) {
        std::string error;
        kept = {stamp, read(file, error)};
    }
    return kept.content;
}

std::vector<std::string> zvHomeFile::lines(const std::string& content) {
    std::vector<std::string> lines;
    std::istringstream stream(content);
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        lines.push_back(line);
    }
    return lines;
}
