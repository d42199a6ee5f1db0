#include "zvPlatform.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "zvPlatformCommon.h"
#include "zvString.h"
#include "zvTestSupport.h"

namespace fs = std::filesystem;

namespace {

TEST(zvPlatformTest, TranslatesPathSeparators) {
    const zvTemporaryFolder folder;
    const std::string path = folder.path().string() + "\\a\\b";
    EXPECT_EQ(zvPlatform::nativePath("\\a/b\\"), onWindows ? "\\a/b\\" : "/a/b/");
    EXPECT_TRUE(zvPlatform::createDirectory(zvString((folder.path().string() + "\\a").c_str()).data()));
    const zvPlatform::Handle handle = zvPlatform::createFile(zvString(path.c_str()).data());
    EXPECT_NE(handle, zvPlatform::refusedHandle);
    EXPECT_TRUE(zvPlatform::closeHandle(handle));
    EXPECT_TRUE(zvPlatform::isAccessible(path.c_str(), 6));
    EXPECT_TRUE(zvPlatform::removeFile(path.c_str()));
    EXPECT_FALSE(zvPlatform::isAccessible(path.c_str(), 0));
}

// What is opened by `open`, below a directory and with links around it.
void checkOpening(zvPlatform::File (*open)(zvPlatform::Handle, const fs::path&)) {
    const zvTemporaryFolder folder;
    const fs::path inside = folder.path() / "inside";
    const fs::path outside = folder.path() / "outside";
    folder.write("outside/file", "outside");
    folder.write("inside/file", "a\r\nb");
    folder.write("inside/sub/file", "sub");
    if (!onWindows) {
        fs::create_symlink("file", inside / "link");
        fs::create_symlink(outside / "file", inside / "linkOut");
        fs::create_directory_symlink(outside, inside / "folderOut");
        fs::create_directory_symlink("sub", inside / "folderIn");
    }
    const zvPlatform::Handle directory = zvPlatform::openDirectory(inside);
    const auto content = [directory, open](const fs::path& path) {
        char text[16] = {};
        const zvPlatform::File file = open(directory, path);
        return file == nullptr ? std::string("refused")
                               : std::string(text, std::fread(text, 1, sizeof(text), file.get()));
    };
    EXPECT_EQ(content("file"), "a\r\nb");
    EXPECT_EQ(content("sub/file"), "sub");
    for (const char* const path :
         {"missing", "sub", "missing/file", "file/file", "../outside/file", "sub/../../outside/file", "link",
          "linkOut", "folderOut/file", "folderIn/file", ".", "..", ""}) {
        EXPECT_EQ(content(path), "refused") << path;
    }
    EXPECT_EQ(content(outside / "file"), "refused");
    if (!onWindows) {
        fs::rename(inside, folder.path() / "moved");
        fs::create_directory_symlink("outside", inside);
        EXPECT_EQ(content("file"), "a\r\nb") << "the directory is the one that was opened";
    }
    EXPECT_TRUE(zvPlatform::closeHandle(directory));
    EXPECT_EQ(zvPlatform::openDirectory(inside / "missing"), zvPlatform::refusedHandle);
    EXPECT_EQ(open(zvPlatform::refusedHandle, "file"), nullptr);
}

TEST(zvPlatformTest, NothingOutsideAnOpenDirectoryIsOpened) {
    checkOpening(zvPlatform::openBelow);
    if constexpr (!onWindows) {
        checkOpening(zvPlatform::openStepByStep);
    }
}

TEST(zvPlatformTest, TheLastErrorSurvivesLaterCalls) {
    const zvTemporaryFolder folder;
    const zvString existing(folder.write("file", "").c_str());
    EXPECT_EQ(zvPlatform::createFile(existing.data()), zvPlatform::refusedHandle);
    EXPECT_FALSE(zvPlatform::closeHandle(zvPlatform::refusedHandle));
    EXPECT_FALSE(zvPlatform::isAccessible(folder.file("missing").c_str(), 0));
    EXPECT_EQ(zvPlatform::errorText(zvPlatform::lastError()), "File exists");
    if (!onWindows) {
        EXPECT_FALSE(zvPlatform::createDirectory(zvString(u"a\xD83D").data()));
        EXPECT_EQ(zvPlatform::lastError(), static_cast<unsigned long>(EILSEQ))
            << "a path without a narrow form";
    }
    EXPECT_EQ(zvPlatform::errorText(zvPlatform::accessError(folder.file("missing").c_str(), 4)),
              onWindows ? "File not found" : "No such file or directory");
    EXPECT_EQ(zvPlatform::accessError(folder.path().string().c_str(), 6), 0UL);
}

// A program that is started with standard input closed gets descriptor 0 for its first file.
TEST(zvPlatformTest, NoFileHasTheHandle0) {
    EXPECT_EXIT(
        {
            const zvTemporaryFolder folder;
            std::fclose(stdin);
            const zvPlatform::Handle handle =
                zvPlatform::createFile(zvString(folder.file("new").c_str()).data());
            std::exit(handle != 0 && zvPlatform::closeHandle(handle) ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST(zvPlatformTest, RefusesToOpenADirectory) {
    const zvTemporaryFolder folder;
    EXPECT_EQ(zvPlatform::openForReading(folder.path().string().c_str()), nullptr);
    zvPlatform::File file = zvPlatform::openForReading(folder.write("file", "x").c_str());
    ASSERT_NE(file, nullptr);
    EXPECT_EQ(std::fgetc(file.get()), 'x');
    EXPECT_EQ(std::fclose(file.release()), 0);
}

}  // namespace
