#ifndef ZV_TEST_SUPPORT_H
#define ZV_TEST_SUPPORT_H

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "zvException.h"
#include "zvString.h"

/// Windows has text mode for files, its own error numbers, and no symlinks in these tests.
constexpr bool onWindows = std::filesystem::path::preferred_separator == '\\';
/// Whether the locale's encoding is UTF-8, which it never is on Windows.
bool localeIsUtf8();

/// Lets GoogleTest print strings.
void PrintTo(const zvString& text, std::ostream* out);

/// The string converted to narrow text; "" for an empty one.
std::string narrow(const zvString& text);

/// The message in the result of the zvException that `action` throws; a failed expectation if it throws none.
template <typename Action>
std::string messageThrownBy(Action action) {
    try {
        action();
    } catch (const zvException& exception) {
        return narrow(exception.getResult().getMessage());
    }
    ADD_FAILURE() << "no zvException was thrown";
    return {};
}

/// A temporary folder, removed recursively by the destructor.
class zvTemporaryFolder {
public:
    zvTemporaryFolder();
    zvTemporaryFolder(const zvTemporaryFolder&) = delete;
    zvTemporaryFolder& operator=(const zvTemporaryFolder&) = delete;
    ~zvTemporaryFolder();

    const std::filesystem::path& path() const { return m_path; }
    /// The path of `name` in the folder, as narrow text.
    std::string file(const std::string& name) const;
    /// Writes `content` to `name`, creates missing folders, and returns its path.
    std::string write(const std::string& name, const std::string& content) const;

private:
    std::filesystem::path m_path;
};

/// The content of a file.
std::string readAll(const std::filesystem::path& path);

/// A fixture with a temporary gateway home and a logger whose events are recorded.
class zvLoggedTest : public testing::Test {
protected:
    zvLoggedTest();
    ~zvLoggedTest() override;

    zvTemporaryFolder m_folder;
};

#endif
