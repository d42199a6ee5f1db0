#include "zvBenchmarkFiles.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

class Folder {
public:
    Folder() : m_path((fs::temp_directory_path() / "zvBenchmarks-XXXXXX").string()) {
        if (mkdtemp(m_path.data()) == nullptr) {
            throw std::runtime_error("No folder could be made for the files: " + m_path);
        }
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

}  // namespace

std::string zvBenchmarkFiles::path(const std::string& name) {
    static const Folder folder;
    return folder.path() + '/' + name;
}
