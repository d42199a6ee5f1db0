// What the program does with files where the systems differ.
#include <fstream>

#include "zvProcess.h"
#include "zvTestSupport.h"

namespace fs = std::filesystem;

namespace {

class zvProcessFilesTest : public testing::Test {
protected:
    fs::path at(const char* name) const { return m_folder.path() / name; }

    zvTemporaryFolder m_folder;
    std::error_code m_error;
};

TEST_F(zvProcessFilesTest, ACopyOrANewNameReplacesWhatWasThere) {
    m_folder.write("from", "new content");
    for (const char* const to : {"copy", "existing", "existing"}) {
        m_folder.write("existing", "old, and longer than the new one");
        zvProcess::copyFile(at("from"), at(to), m_error);
        EXPECT_FALSE(m_error) << zvProcess::messageOf(m_error);
        EXPECT_EQ(readAll(at(to)), "new content");
    }
    zvProcess::replaceFile(at("from"), at("existing"), m_error);
    EXPECT_FALSE(m_error) << zvProcess::messageOf(m_error);
    EXPECT_FALSE(fs::exists(at("from")));
    zvProcess::copyFile(at("from"), at("existing"), m_error);
    EXPECT_TRUE(m_error);
    EXPECT_FALSE(zvProcess::messageOf(m_error).empty());
    EXPECT_EQ(readAll(at("existing")), "new content");
}

TEST_F(zvProcessFilesTest, AFileIsCreatedOnce) {
    std::FILE* const file = zvProcess::createFile(at("file"));
    ASSERT_NE(file, nullptr);
    std::fputs("a\nb", file);
    std::fclose(file);
    EXPECT_EQ(readAll(at("file")), "a\nb") << "byte for byte";
    EXPECT_EQ(zvProcess::createFile(at("file")), nullptr);
    EXPECT_EQ(errno, EEXIST);
}

TEST_F(zvProcessFilesTest, ATreeIsRemovedAndNothingElse) {
    m_folder.write("outside/file", "stays");
    m_folder.write("tree/a/b/file", "");
    m_folder.write("tree/read-only", "");
    fs::permissions(at("tree/read-only"), fs::perms::owner_read);
    if (!onWindows) {
        fs::create_directory_symlink(at("outside"), at("tree/link"));
        fs::create_symlink(at("outside/file"), at("tree/a/link"));
    }
    zvProcess::removeTree(at("tree"), m_error);
    EXPECT_FALSE(m_error) << zvProcess::messageOf(m_error);
    EXPECT_FALSE(fs::exists(at("tree")));
    EXPECT_EQ(readAll(at("outside/file")), "stays");
    zvProcess::removeTree(at("tree"), m_error);
    EXPECT_FALSE(m_error) << "what is not there is removed";
    zvProcess::removeTree(at("outside/file"), m_error);
    EXPECT_FALSE(fs::exists(at("outside/file")));
}

TEST_F(zvProcessFilesTest, ALockKeepsOthersOffUntilItIsReleased) {
    const fs::path file = at("record");
    zvProcess::FileLock lock;
    EXPECT_FALSE(zvProcess::isLocked(file));
    ASSERT_EQ(lock.take(file, m_error), zvProcess::Lock::taken);
    EXPECT_TRUE(zvProcess::isLocked(file));
    zvProcess::FileLock other;
    EXPECT_EQ(other.take(file, m_error), zvProcess::Lock::heldByAnother);
    EXPECT_FALSE(zvProcess::appendToFile(file, "line\n", true)) << "its holder writes it";
    EXPECT_EQ(readAll(file), "line\n") << "and everybody reads it";
    lock.release();
    EXPECT_FALSE(zvProcess::isLocked(file));
    EXPECT_EQ(other.take(file, m_error), zvProcess::Lock::taken);
    zvProcess::removeTree(file, m_error);
    EXPECT_FALSE(m_error) << zvProcess::messageOf(m_error);
    other.release();
    EXPECT_FALSE(fs::exists(file)) << "a file that was removed while it was locked";
    fs::create_directory(at("folder"));
    EXPECT_EQ(other.take(at("folder"), m_error), zvProcess::Lock::refused);
}

}  // namespace
