#include "zvTemporaryFolder.h"

#include <string>
#include <system_error>

#include "zvProcess.h"

namespace fs = std::filesystem;

zvTemporaryFolder::zvTemporaryFolder() {
    const std::string name = "zvgateway-" + std::to_string(zvProcess::id()) + "-";
    int number = 0;
    do {
        m_path = fs::temp_directory_path() / (name + std::to_string(++number));
    } while (!fs::create_directory(m_path));
    fs::permissions(m_path, fs::perms::owner_all);
}

zvTemporaryFolder::~zvTemporaryFolder() {
    std::error_code ignored;
    zvProcess::removeTree(m_path, ignored);
}
