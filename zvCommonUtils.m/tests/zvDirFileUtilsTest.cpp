#include "zvDirFileUtils.h"

#include <cerrno>
#include <fstream>

#include "zvProperties.h"
#include "zvRecordingLogger.h"
#include "zvTestLocale.h"
#include "zvTestSupport.h"

namespace {

using Lines = std::vector<std::string>;

// The system's error number for a missing parent folder.
const std::string noSuchFolder = std::to_string(onWindows ? 3 : ENOENT);

class zvDirFileUtilsTest : public zvLoggedTest {
protected:
    // With backslashes, as callers use on every system.
    std::string inFolder(const std::string& name) const { return m_folder.path().string() + "\\" + name; }
};

TEST_F(zvDirFileUtilsTest, CreatesOneDirectoryAtATime) {
    const std::string path = inFolder("new");
    EXPECT_TRUE(zvDirFileUtils::createDirectory(path.c_str()).isOk());
    EXPECT_TRUE(std::filesystem::is_directory(m_folder.path() / "new"));
    EXPECT_EQ(zvDirFileUtils::createDirectory(path.c_str()).getResult(), -1);
    EXPECT_EQ(zvDirFileUtils::createDirectory("").getResult(), -1);
    const std::string orphan = inFolder("missing\\child");
    EXPECT_EQ(zvDirFileUtils::createDirectory(orphan.c_str()).getResult(), -1);
    const Lines expected = {
        "warn: Directory \"" + path + "\" already exist",
        "error: Empty directory path received in zvDirFileUtils::createDirectory.",
        "error: Error occured while creating directory :" + orphan + " ErrorCode :" + noSuchFolder};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
}

TEST_F(zvDirFileUtilsTest, ARefusedFileIsLoggedAndReadsAsSuccess) {
    const std::string path = inFolder("new.txt");
    EXPECT_TRUE(zvDirFileUtils::createFile(path.c_str()).isOk());
    EXPECT_EQ(std::filesystem::file_size(m_folder.path() / "new.txt"), 0U);
    const std::string kept = m_folder.write("kept", "content");
    EXPECT_EQ(zvDirFileUtils::createFile(kept.c_str()).getResult(), -1);
    EXPECT_EQ(readAll(kept), "content");
    EXPECT_EQ(zvDirFileUtils::createFile("").getResult(), -1);
    const std::string orphan = inFolder("missing\\file");
    EXPECT_TRUE(zvDirFileUtils::createFile(orphan.c_str()).isOk());
    EXPECT_FALSE(zvDirFileUtils::isAccessible(orphan.c_str(), 0));
    const Lines expected = {
        "warn: File \"" + kept + "\" already exist",
        "error: Empty file path received in zvDirFileUtils::createDirectory.",
        "error: Error occured while closing file handle :" + orphan + " ErrorCode :" + noSuchFolder};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
}

TEST_F(zvDirFileUtilsTest, TestsAccess) {
    const std::string path = m_folder.write("file", "");
    EXPECT_TRUE(zvDirFileUtils::isAccessible(path.c_str(), 0) &&
                zvDirFileUtils::isAccessible(path.c_str(), 6));
    EXPECT_TRUE(zvDirFileUtils::isAccessible(inFolder("file").c_str(), 4)) << "either delimiter";
    EXPECT_FALSE(zvDirFileUtils::isAccessible(path.c_str(), 1)) << "no mode of the home platform";
    EXPECT_TRUE(zvRecordingLogger::lines().empty());
    EXPECT_FALSE(zvDirFileUtils::isAccessible("", 0));
    EXPECT_EQ(zvRecordingLogger::lines(), Lines{"warn: Empty directory/file name passed."});
}

TEST_F(zvDirFileUtilsTest, DeletesAFile) {
    const std::string path = m_folder.write("file", "");
    EXPECT_TRUE(zvDirFileUtils::deleteFile(path.c_str()));
    EXPECT_FALSE(zvDirFileUtils::deleteFile(path.c_str()));
    const Lines expected = {"info: Inside function zvDirFileUtils::deleteDirectory(zvString)",
                            "info: Successfully Deleted :" + path,
                            "info: Inside function zvDirFileUtils::deleteDirectory(zvString)",
                            "warn: Failed to Delete :" + path};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
    std::filesystem::create_directory(m_folder.path() / "empty");
    EXPECT_FALSE(zvDirFileUtils::deleteFile(inFolder("empty").c_str())) << "a directory";
    EXPECT_TRUE(std::filesystem::exists(m_folder.path() / "empty"));
}

TEST_F(zvDirFileUtilsTest, DeletesTreesWithoutFollowingLinks) {
    if (onWindows) {
        GTEST_SKIP() << "links";
    }
    m_folder.write("a tree/deep/file", "");
    m_folder.write("other/file", "");
    const std::string outside = m_folder.write("outside/kept", "");
    std::filesystem::create_directory_symlink(m_folder.path() / "outside", m_folder.path() / "a tree/link");
    const std::string tree = inFolder("a tree");
    EXPECT_FALSE(zvDirFileUtils::deleteDir("")) << "no path";
    EXPECT_FALSE(zvDirFileUtils::deleteDir(inFolder("other").c_str())) << "no blank";
    EXPECT_FALSE(zvDirFileUtils::deleteDir((" " + tree).c_str())) << "a blank in the path and no quotes";
    EXPECT_FALSE(zvDirFileUtils::deleteDir((" " + inFolder("other\\file")).c_str())) << "no directory";
    for (const char* const dots : {"..", "..\\", ".", ".\\\\"}) {
        EXPECT_FALSE(zvDirFileUtils::deleteDir((" " + inFolder("other\\") + dots).c_str())) << dots;
        EXPECT_TRUE(std::filesystem::exists(m_folder.path() / "other/file")) << dots;
    }
    EXPECT_TRUE(std::filesystem::exists(m_folder.path() / "a tree/deep/file"));
    zvRecordingLogger::reset();
    const std::string both = " \"" + tree + "\\\" " + inFolder("other");
    EXPECT_TRUE(zvDirFileUtils::deleteDir(both.c_str()));
    EXPECT_FALSE(std::filesystem::exists(m_folder.path() / "a tree") ||
                 std::filesystem::exists(m_folder.path() / "other"));
    EXPECT_TRUE(std::filesystem::exists(outside));
    const Lines expected = {"info: Inside function zvDirFileUtils::deleteDir(zvString)",
                            "info: Successfully Deleted Dir:" + both};
    EXPECT_EQ(zvRecordingLogger::lines(), expected);
    EXPECT_FALSE(zvDirFileUtils::deleteDir((" " + tree + "; touch x").c_str()));
    EXPECT_EQ(zvRecordingLogger::lines("warn"), Lines{"Failed to Delete Dir : " + tree + "; touch x"});
}

TEST_F(zvDirFileUtilsTest, ReadsLines) {
    const std::string joined(3000, 'x');
    const std::string piece(1023, 'y');
    struct Case {
        std::string content;
        Lines expected;
    };
    const Case cases[] = {
        {"a\n\nb\n", {"a", "b"}},
        {"a\nno line feed", {"a", "no line feed"}},
        {"a\r\n\r\n", onWindows ? Lines{"a"} : Lines{"a\r", "\r"}},
        {joined + "\n" + joined, {joined, joined}},
        {piece + "\n" + piece, {piece, piece}},
        {std::string(1022, 'z') + "\xC3\xA4\nend", {std::string(1022, 'z') + "\xC3\xA4", "end"}},
        {std::string("cut\0off\nnext\n\0\nlast", 19), {"cut", "next", "last"}},
        {"", {}},
    };
    for (const Case& c : cases) {
        zvStringList lines;
        EXPECT_TRUE(zvDirFileUtils::readFile(m_folder.write("file", c.content).c_str(), lines).isOk());
        Lines read;
        for (int i = 0; i < lines.numStrings(); ++i) {
            read.push_back(narrow(lines.getString(i)));
        }
        EXPECT_EQ(read, c.expected);
    }
}

TEST_F(zvDirFileUtilsTest, ReadingAppendsOrEmptiesTheList) {
    zvStringList lines;
    lines.addString("before");
    const std::string path = m_folder.write("file", "line\n\xFF\n");
    EXPECT_TRUE(zvDirFileUtils::readFile(path.c_str(), lines).isOk());
    const int unreadable = localeIsUtf8() ? 1 : 0;
    EXPECT_EQ(lines.numStrings(), 3 - unreadable);
    EXPECT_EQ(zvRecordingLogger::lines("info"), Lines{"\"" + path + "\" opened for reading."});
    EXPECT_EQ(static_cast<int>(zvRecordingLogger::lines("warn").size()), unreadable)
        << "a line that cannot be converted";
    const std::string missing = m_folder.file("missing");
    for (const std::string& refused : {missing, m_folder.path().string(), std::string()}) {
        lines.addString("before");
        EXPECT_EQ(zvDirFileUtils::readFile(refused.c_str(), lines).getResult(), -1);
        EXPECT_TRUE(lines.empty());
    }
    const Lines errors = {"Error in opening file : \"" + missing + "\"",
                          "Error in opening file : \"" + m_folder.path().string() + "\"", "Empty file path."};
    EXPECT_EQ(zvRecordingLogger::lines("error"), errors);
}

// A process's own memory can be opened, but not read where there is none.
TEST_F(zvDirFileUtilsTest, AReadErrorIsAFailureWithItsReason) {
    const char* const path = "/proc/self/mem";
    if (!std::filesystem::exists(path)) {
        GTEST_SKIP() << "a file that can be opened and not read";
    }
    const std::string reason = onWindows ? "Invalid argument" : "Input/output error";
    zvStringList lines;
    lines.addString("before");
    const zvResult result = zvDirFileUtils::readFile(path, lines);
    EXPECT_EQ(result.getResult(), -1);
    EXPECT_EQ(result.getMessage(), reason.c_str());
    EXPECT_TRUE(lines.empty());
    EXPECT_EQ(zvRecordingLogger::lines("error"),
              Lines{"Error in reading file : \"/proc/self/mem\", " + reason});
    const zvResult parsed = zvProperties().parse(path);
    EXPECT_EQ(parsed.getResult(), -1);
    EXPECT_EQ(parsed.getMessage(), reason.c_str());
}

// The byte of a backslash inside a character separates no folders.
TEST_F(zvDirFileUtilsTest, FindsFilesInEveryEncoding) {
    for (const zvTestEncoding& encoding : zvTestEncodings) {
        const zvTestLocale locale(encoding.definition, encoding.encoding);
        if (!locale.isSet()) {
            GTEST_SKIP() << "the locale " << encoding.definition << " in " << encoding.encoding;
        }
        const std::string name = encoding.character;
        const zvString folder = zvString(inFolder(name).c_str());
        const zvString file = folder + "\\" + name.c_str() + ".txt";
        ASSERT_FALSE(folder.empty());
        EXPECT_TRUE(zvDirFileUtils::createDirectory(folder).isOk());
        EXPECT_TRUE(zvDirFileUtils::createFile(file).isOk());
        const std::filesystem::path made = m_folder.path() / name / (name + ".txt");
        EXPECT_TRUE(std::filesystem::is_regular_file(made)) << encoding.encoding;
        std::ofstream(made) << "line";
        EXPECT_TRUE(zvDirFileUtils::isAccessible(file, 6));
        zvStringList lines;
        EXPECT_TRUE(zvDirFileUtils::readFile(file, lines).isOk());
        EXPECT_EQ(lines.getString(0), "line");
        EXPECT_EQ(zvDirFileUtils::extractFileName(file), zvString(name.c_str()) + ".txt");
        EXPECT_TRUE(zvDirFileUtils::deleteFile(file));
        EXPECT_TRUE(zvDirFileUtils::deleteDir(zvString(" ") + folder));
        EXPECT_FALSE(std::filesystem::exists(made.parent_path())) << encoding.encoding;
    }
}

TEST_F(zvDirFileUtilsTest, SplitsPaths) {
    struct Case {
        const char *path, *directory, *file, *warning;
    };
    const Case cases[] = {
        {"C:\\dir\\file.xml", "C:\\dir", "file.xml", nullptr},
        {"C:\\dir.d\\file", "C:\\dir.d", "file", nullptr},
        {"C:\\dir/sub\\f.txt", "C:\\dir/sub", "f.txt", nullptr},
        {"C:\\dir\\sub/f.txt", "C:\\dir", "f.txt", nullptr},
        {"C:\\dir\\file", "", "file", "\".\" not found in the absolute file path."},
        {"file.xml", "", "", "\"\\\" not found in the absolute file path."},
        {"", "", "", "Function zvDirFileUtils::extractDirName(zvString) received empty file name."}};
    for (const Case& c : cases) {
        zvRecordingLogger::reset();
        EXPECT_EQ(zvDirFileUtils::extractDirName(c.path), c.directory) << c.path;
        EXPECT_EQ(zvDirFileUtils::extractFileName(c.path), c.file) << c.path;
        EXPECT_EQ(zvRecordingLogger::lines("warn"), c.warning == nullptr ? Lines{} : Lines{c.warning});
    }
    zvString path("C:\\a\\");
    zvDirFileUtils::appendPathDelimiter(path);
    EXPECT_EQ(path, "C:\\a\\\\");
}

}  // namespace
