// What a program has whose narrow texts are UTF-8, whatever the locale. A program of its own: they stay so.
#include <clocale>

#include "zvCommonUtils.h"
#include "zvDirFileUtils.h"
#include "zvPlatform.h"
#include "zvTestSupport.h"
#include "zvTextCodec.h"

namespace {

namespace fs = std::filesystem;

class zvUtf8ProgramTest : public zvLoggedTest {
protected:
    static void SetUpTestSuite() {
        zvCommonUtils::adoptUtf8();
        std::setlocale(LC_ALL, "C");
    }
};

// No code page has both of them, nor the second half of the pair.
const std::string name = "\xC3\xA4 \xE4\xB8\xAD \xF0\x9F\x98\x80";

TEST_F(zvUtf8ProgramTest, TextsRoundTrip) {
    std::string longText;
    for (const int count : {1, 700, 2800, 9000}) {  // around the size of what is converted at once
        longText.clear();
        for (int i = 0; i < count; ++i) {
            longText += "\xE4\xB8\xAD";
        }
        const zvString wide(longText.c_str());
        EXPECT_EQ(wide.size(), count);
        EXPECT_EQ(narrow(wide), longText) << count;
    }
    EXPECT_EQ(narrow(zvString(name.c_str())), name);
    EXPECT_EQ(zvString(name.c_str()).size(), 6);
    for (const char* const text : {"\xE4", "a\xC3", "\xED\xA0\x80", "\x80"}) {
        EXPECT_TRUE(zvString(text).empty()) << "no guess: " << testing::PrintToString(text);
    }
    EXPECT_EQ(zvTextCodec::lastSeparator("\xE4\xB8\xAD/\xE8\xA1\xA8\\x"), 7U);
}

TEST_F(zvUtf8ProgramTest, TheEnvironmentHasEveryCharacter) {
    zvPlatform::setEnvironment("ZV_TEST_NAME", name.c_str());
    EXPECT_EQ(zvPlatform::environment("ZV_TEST_NAME"), name);
    EXPECT_EQ(narrow(zvCommonUtils::getEnvironmentalVariable("ZV_TEST_NAME")), name);
    zvPlatform::setEnvironment("ZV_TEST_NAME", "");
}

TEST_F(zvUtf8ProgramTest, FilesHaveTheNamesThatAreAskedFor) {
    const fs::path folder = m_folder.path() / fs::u8path(name);
    const zvString narrowFolder((zvPlatform::textOf(m_folder.path()) + "\\" + name).c_str());
    ASSERT_TRUE(zvDirFileUtils::createDirectory(narrowFolder).isOk());
    EXPECT_TRUE(fs::is_directory(folder));
    const zvString file = narrowFolder + "\\" + name.c_str();
    ASSERT_TRUE(zvDirFileUtils::createFile(file).isOk());
    EXPECT_TRUE(fs::is_regular_file(folder / fs::u8path(name)));
    EXPECT_TRUE(zvDirFileUtils::getAccessError(file, zvDirFileUtils::readAndWrite).empty());
    {
        const zvPlatform::File out = zvPlatform::openForWriting(narrow(file).c_str());
        ASSERT_NE(out, nullptr);
        std::fputs("a line", out.get());
    }
    zvStringList lines;
    ASSERT_TRUE(zvDirFileUtils::readFile(file, lines).isOk());
    EXPECT_EQ(narrow(lines.getString(0)), "a line");
    EXPECT_TRUE(zvDirFileUtils::deleteFile(file));
    EXPECT_FALSE(fs::exists(folder / fs::u8path(name)));
    EXPECT_TRUE(zvDirFileUtils::deleteDir(" \"" + narrowFolder + "\""));
    EXPECT_FALSE(fs::exists(folder));
}

// Windows limits a path to 260 characters unless it is asked in another form.
TEST_F(zvUtf8ProgramTest, APathMayBeLong) {
    zvString path(zvPlatform::textOf(m_folder.path()).c_str());
    constexpr int longEnough = 400;
    while (path.size() < longEnough) {
        path += "\\a folder with a name that takes some room";
        ASSERT_TRUE(zvDirFileUtils::createDirectory(path).isOk()) << narrow(path);
    }
    path += "\\file";
    ASSERT_TRUE(zvDirFileUtils::createFile(path).isOk());
    EXPECT_TRUE(zvDirFileUtils::getAccessError(path, zvDirFileUtils::readable).empty());
    EXPECT_NE(zvPlatform::openForReading(narrow(path).c_str()), nullptr);
    zvPlatform::FileIdentity identity;
    EXPECT_TRUE(zvPlatform::identify(zvPlatform::pathOf(narrow(path)), identity));
    EXPECT_TRUE(zvDirFileUtils::deleteFile(path));
}

TEST_F(zvUtf8ProgramTest, OtherLibrariesGetTheirOwnEncoding) {
    EXPECT_EQ(zvPlatform::textForLibraries("C:\\a;b"), "C:\\a;b");
    EXPECT_EQ(zvPlatform::textForLibraries(""), "");
    if (onWindows) {
        const std::string text = zvPlatform::textForLibraries("x \xC3\xA4 y");
        EXPECT_EQ(text, "x \xE4 y") << "in the code page of the tests";
    }
}

}  // namespace
