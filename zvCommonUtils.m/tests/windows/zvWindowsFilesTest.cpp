// Files, folders, text mode and time as on Windows only.
#include <clocale>

#include "zvCharString.h"
#include "zvDateTime.h"
#include "zvDirFileUtils.h"
#include "zvPlatform.h"
#include "zvRecordingLogger.h"
#include "zvTestSupport.h"

namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

class zvWindowsFilesTest : public zvLoggedTest {
protected:
    std::string inFolder(const std::string& name) const { return m_folder.path().string() + "\\" + name; }
    bool isThere(const fs::path& name) const { return fs::exists(m_folder.path() / name); }
    /// Runs "rmdir /s/q" with the arguments unchanged.
    static bool removes(const std::string& arguments) { return zvDirFileUtils::deleteDir(arguments.c_str()); }
};

TEST_F(zvWindowsFilesTest, PathsHaveDrivesAndEitherSeparator) {
    const std::string folder = m_folder.path().string();
    ASSERT_EQ(folder.substr(1, 2), ":\\");
    EXPECT_TRUE(zvDirFileUtils::isAccessible((folder.substr(0, 2) + "\\").c_str(), 0));
    EXPECT_TRUE(zvDirFileUtils::isAccessible(m_folder.path().generic_string().c_str(), 0));
    EXPECT_FALSE(zvDirFileUtils::isAccessible("Q:\\", 0)) << "no such drive";
    EXPECT_TRUE(zvDirFileUtils::createDirectory((m_folder.path().generic_string() + "/a b").c_str()).isOk());
    EXPECT_TRUE(zvDirFileUtils::createFile(inFolder("a b/x.txt").c_str()).isOk());
    EXPECT_TRUE(zvDirFileUtils::isAccessible(inFolder("A B\\X.TXT").c_str(), 0)) << "case does not count";
    EXPECT_EQ(zvDirFileUtils::createDirectory(inFolder("A B").c_str()).getResult(), -1);
    const fs::path before = fs::current_path();
    fs::current_path(m_folder.path());
    EXPECT_TRUE(zvDirFileUtils::createDirectory("relative").isOk());
    EXPECT_TRUE(zvDirFileUtils::isAccessible((folder.substr(0, 2) + "relative").c_str(), 0));
    EXPECT_TRUE(zvDirFileUtils::isAccessible((folder.substr(2) + "\\relative").c_str(), 0));
    fs::current_path(before);
}

// Names are passed to the system as wide strings: the locale need not be able to encode them.
TEST_F(zvWindowsFilesTest, NamesMayHaveCharactersThatTheLocaleCannotEncode) {
    const zvString name = zvString(inFolder("").c_str()) + u"\u4E2D \u20AC";
    ASSERT_EQ(zvString(u"\u4E2D").getChars(), nullptr);
    EXPECT_TRUE(zvDirFileUtils::createDirectory(name).isOk());
    EXPECT_TRUE(isThere(u"\u4E2D \u20AC"));
}

TEST_F(zvWindowsFilesTest, NamesThatTheSystemWouldChangeAreRefused) {
    m_folder.write("a", "");
    for (const char* const name : {"NUL", "nul", "aux.txt", "COM1", "lpt9.x.y", "con .x", "NUL\\file", "a.",
                                   "a ", "a. \\b", "a:stream", "a?", "a*", "a|b", "a\"b", "a\tb"}) {
        const zvString path = inFolder(name).c_str();
        EXPECT_FALSE(zvDirFileUtils::getNameError(path).empty()) << name;
        EXPECT_EQ(zvDirFileUtils::getAccessError(path, 0), zvDirFileUtils::getNameError(path)) << name;
        EXPECT_EQ(zvDirFileUtils::createDirectory(path).getResult(), -1) << name;
        zvDirFileUtils::createFile(path);
        EXPECT_EQ(zvPlatform::openForReading(zvCharString(path).data()), nullptr) << name;
        EXPECT_EQ(zvPlatform::openForWriting(zvCharString(path).data()), nullptr) << name;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(m_folder.path()), {}), 1) << "nothing was made";
    EXPECT_TRUE(fs::is_empty(m_folder.path() / "a")) << "nor written";
    for (const char* const name :
         {"null", "aux1", "COM0", "COM10", "console.txt", ".a", "..", "a.b", " a", "x\\..\\y"}) {
        EXPECT_TRUE(zvDirFileUtils::getNameError(inFolder(name).c_str()).empty()) << name;
    }
    EXPECT_TRUE(zvDirFileUtils::getNameError("\\\\server\\share\\a").empty()) << "UNC";
    EXPECT_FALSE(zvDirFileUtils::getNameError("\\\\server\\share\\aux").empty());
}

TEST_F(zvWindowsFilesTest, FailuresHaveTheSystemsErrorNumbers) {
    m_folder.write("file", "");
    const struct {
        std::string path;
        int error;
    } cases[] = {{inFolder("missing\\child"), 3}, {inFolder("file\\child"), 3}, {inFolder("a?b"), 123}};
    for (const auto& [path, error] : cases) {
        zvRecordingLogger::reset();
        EXPECT_EQ(zvDirFileUtils::createDirectory(path.c_str()).getResult(), -1);
        EXPECT_TRUE(zvDirFileUtils::createFile(path.c_str()).isOk()) << "reads as success";
        const std::string what = path + " ErrorCode :" + std::to_string(error);
        EXPECT_EQ(zvRecordingLogger::lines(),
                  (Lines{"error: Error occured while creating directory :" + what,
                         "error: Error occured while closing file handle :" + what}));
    }
}

TEST_F(zvWindowsFilesTest, AccessIsTestedInTheRuntimesModes) {
    const std::string file = m_folder.write("read only", "");
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::remove);
    struct Case {
        std::string path;
        bool exists, isWritable, isReadable, isBoth;
    };
    const Case cases[] = {{file, true, false, true, false},
                          {m_folder.write("file", ""), true, true, true, true},
                          {m_folder.path().string(), true, true, true, true},
                          {inFolder("missing"), false, false, false, false}};
    for (const Case& c : cases) {
        const auto is = [&](int mode) { return zvDirFileUtils::isAccessible(c.path.c_str(), mode); };
        EXPECT_EQ(is(0), c.exists) << c.path;
        EXPECT_EQ(is(2), c.isWritable) << c.path;
        EXPECT_EQ(is(4), c.isReadable) << c.path;
        EXPECT_EQ(is(6), c.isBoth) << c.path;
    }
    EXPECT_FALSE(zvDirFileUtils::deleteFile(file.c_str()));
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add);
    EXPECT_TRUE(zvDirFileUtils::deleteFile(file.c_str()));
}

TEST_F(zvWindowsFilesTest, TreesAreRemovedByTheCommandShell) {
    for (const char* const name :
         {"plain/deep/file", "a b/deep/file", "a & b/file", "second/file", "third/x/y"}) {
        m_folder.write(name, "");
    }
    EXPECT_TRUE(removes(" " + inFolder("plain")));
    EXPECT_TRUE(removes(" \"" + inFolder("a b") + "\""));
    EXPECT_TRUE(removes(" \"" + inFolder("a & b") + "\""));
    EXPECT_TRUE(removes(" " + inFolder("second") + " \"" + inFolder("third") + "\"")) << "two at once";
    for (const char* const name : {"plain", "a b", "a & b", "second", "third"}) {
        EXPECT_FALSE(isThere(name)) << name;
    }
    EXPECT_EQ(zvRecordingLogger::lines("info").back(),
              "Successfully Deleted Dir: " + inFolder("second") + " \"" + inFolder("third") + "\"");
    // Failures of the shell are not tested: wine's cmd reports success.
    EXPECT_FALSE(removes("")) << "no command at all";
}

TEST_F(zvWindowsFilesTest, FilesAreReadAsText) {
    const struct {
        std::string content;
        Lines expected;
    } cases[] = {{"a\r\nb\r\n", {"a", "b"}},
                 {"a\r\n\r\nb", {"a", "b"}},
                 {"a\rb\r\n", {"a\rb"}},
                 {"a\x1A"
                  "b\r\nc\r\n",
                  {"a"}},  // control-Z is the end of file in text mode
                 {std::string(1023, 'x') + "\r\n" + std::string(3000, 'y') + "\r\n",
                  {std::string(1023, 'x'), std::string(3000, 'y')}}};
    for (const auto& [content, expected] : cases) {
        zvStringList lines;
        EXPECT_TRUE(zvDirFileUtils::readFile(m_folder.write("file", content).c_str(), lines).isOk());
        Lines read;
        for (int i = 0; i < lines.numStrings(); ++i) {
            read.push_back(narrow(lines.getString(i)));
        }
        EXPECT_EQ(read, expected);
    }
}

TEST_F(zvWindowsFilesTest, InTheCLocaleBytesAndCharactersAreOneToOne) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "C");
    std::string bytes;
    for (int byte = 1; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    const zvString text(bytes.c_str());
    ASSERT_EQ(text.size(), 255);
    for (int i = 0; i < text.size(); ++i) {
        EXPECT_EQ(text[i], i + 1);
    }
    EXPECT_EQ(zvCharString(text).data(), bytes);
    EXPECT_EQ(zvString(u"\u0100").getChars(), nullptr);
    EXPECT_STREQ(zvCharString(u"\u20AC").data(), "");
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(zvWindowsFilesTest, LibrariesAreFoundByNameAndByPath) {
    for (const char* const name : {"kernel32", "kernel32.dll", "C:\\windows\\system32\\kernel32.dll"}) {
        void* const library = zvPlatform::loadLibrary(name);
        EXPECT_NE(zvPlatform::findFunction(library, "GetTickCount"), nullptr) << name;
        EXPECT_EQ(zvPlatform::findFunction(library, "NoSuchFunction"), nullptr) << name;
    }
    EXPECT_EQ(zvPlatform::loadLibrary("no such library"), nullptr);
}

}  // namespace
