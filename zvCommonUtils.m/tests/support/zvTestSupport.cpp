#include "zvTestSupport.h"

#include <fstream>
#include <iterator>
#include <random>
#include <set>

#include "zvCharString.h"
#include "zvLogger.h"
#include "zvPlatform.h"
#include "zvRecordingLogger.h"

namespace {

void removeFolder(const std::filesystem::path& folder) {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

// exit() in a test skips the destructors of local objects: folders registered here are removed nevertheless.
struct OpenFolders {
    OpenFolders() = default;
    OpenFolders(const OpenFolders&) = delete;
    OpenFolders& operator=(const OpenFolders&) = delete;
    ~OpenFolders() {
        for (const auto& path : paths) {
            removeFolder(path);
        }
    }

    std::set<std::filesystem::path> paths;
} openFolders;

}  // namespace

bool localeIsUtf8() { return narrow(u"\u00E4") == "\xC3\xA4"; }

void PrintTo(const zvString& text, std::ostream* out) { *out << '"' << narrow(text) << '"'; }

std::string narrow(const zvString& text) { return zvCharString(text).data(); }

zvTemporaryFolder::zvTemporaryFolder() {
    std::random_device random;
    do {
        m_path = std::filesystem::temp_directory_path() / ("zvTest-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(m_path));
    openFolders.paths.insert(m_path);
}

zvTemporaryFolder::~zvTemporaryFolder() {
    removeFolder(m_path);
    openFolders.paths.erase(m_path);
}

std::string zvTemporaryFolder::file(const std::string& name) const {
    return zvPlatform::textOf(m_path / zvPlatform::pathOf(name));
}

std::string zvTemporaryFolder::write(const std::string& name, const std::string& content) const {
    const std::filesystem::path path = m_path / zvPlatform::pathOf(name);
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
    return zvPlatform::textOf(path);
}

std::string readAll(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

zvLoggedTest::zvLoggedTest() {
    zvPlatform::setEnvironment("GATEWAY_HOME", m_folder.path().string().c_str());
    zvLogger::destroyInstance();
    zvRecordingLogger::reset();
}

zvLoggedTest::~zvLoggedTest() { zvLogger::destroyInstance(); }
