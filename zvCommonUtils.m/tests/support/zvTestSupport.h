#ifndef ZV_TEST_SUPPORT_H
#define ZV_TEST_SUPPORT_H

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "zvException.h"
#include "zvString.h"

/// The library's home platform, which reads files as text, has errors of its own and knows no links.
constexpr bool onWindows = std::filesystem::path::preferred_separator == '\\';
/// Whether narrow texts can hold every character: not in the locales of the home platform.
bool localeIsUtf8();

/// Lets GoogleTest print texts.
void PrintTo(const zvString& text, std::ostream* out);

/// The text as narrow text, "" for an empty one.
std::string narrow(const zvString& text);

/// The message in the result of the zvException that `action` throws; a failed expectation when it throws
/// none.
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

/// A folder of the test's own, removed with everything in it.
class zvTemporaryFolder {
public:
    zvTemporaryFolder();
    zvTemporaryFolder(const zvTemporaryFolder&) = delete;
    zvTemporaryFolder& operator=(const zvTemporaryFolder&) = delete;
    ~zvTemporaryFolder();

    const std::filesystem::path& path() const { return m_path; }
    /// The path of `name` in the folder, as narrow text.
    std::string file(const std::string& name) const;
    /// Writes `content` to `name`, folders on the way included, and returns its path.
    std::string write(const std::string& name, const std::string& content) const;

private:
    std::filesystem::path m_path;
};

/// The whole content of a file.
std::string readAll(const std::filesystem::path& path);

/// A test with a gateway home in a folder of its own and a logger whose events the recording logger keeps.
class zvLoggedTest : public testing::Test {
protected:
    zvLoggedTest();
    ~zvLoggedTest() override;

    zvTemporaryFolder m_folder;
};

#endif
