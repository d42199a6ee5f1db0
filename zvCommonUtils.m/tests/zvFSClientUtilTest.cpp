#include "zvFSClientUtil.h"

#include <algorithm>

#include "zvJavaTest.h"

namespace {

namespace fs = std::filesystem;

// A fixture with the files of event 1300 in a shadow directory.
class zvFSClientUtilTest : public zvJavaTest {
protected:
    zvFSClientUtilTest() : m_args(zvEventMirror, "jdoe") {
        m_args.setEventArgument("RootShadowDir", m_folder.file("root").c_str());
        m_args.setEventArgument("EventShadowDir", "1300");
        m_args.setEventArgument("DataFileName", "1300_data.xml");
        m_args.setEventArgument("AttachmentsFileName", "1300_attachments.xml");
        m_folder.write("root/1300/1300_data.xml", "<data/>");
        m_folder.write("root/1300/1300_attachments.xml", "");
    }

    void attach(const std::string& path, int mode = 0, bool toBeDeleted = true) {
        auto* const attachment = new zvAttachment;
        attachment->setFilePath(path.c_str());
        attachment->setFileTransferMode(mode);
        attachment->setToBeDeleted(toBeDeleted);
        m_attachments.addAttachment(attachment);
    }
    /// The path with the separators that events use.
    std::string path(const std::string& name) const {
        std::string text = m_folder.file(name);
        std::replace(text.begin() + 1, text.end(), '/', '\\');
        return text;
    }
    /// The path with the system's separators, as the client gets it.
    std::string local(const std::string& name) const {
        return zvPlatform::textOf(pathOf(name).make_preferred());
    }
    fs::path pathOf(const std::string& name) const { return zvPlatform::pathOf(m_folder.file(name)); }
    std::string urlOf(const std::string& name) const {
        return (onWindows ? "url=file:///" : "url=file://") + pathOf(name).generic_string();
    }
    std::string put(const std::string& name, const std::string& remote) const {
        return "put(" + local(name) + "," + remote + ")";
    }
    std::string get(const std::string& remote, const std::string& name) const {
        return "get(" + remote + "," + local(name) + ")";
    }
    bool isThere(const std::string& name) const { return fs::exists(pathOf(name)); }

    zvEventArguments m_args;
    zvAttachmentList m_attachments;
};

struct Observer : zvTransferObserver {
    void fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) override {
        EXPECT_GE(milliseconds, 0);
        told.push_back(narrow(local) + " " + std::to_string(bytes));
    }
    Lines told;
};

TEST_F(zvFSClientUtilTest, CreatesTheEventsDirectory) {
    connect();
    EXPECT_TRUE(zvFSClientUtil::createShadowDir(m_args).isOk());
    EXPECT_EQ(calls(), Lines{"mkDir(1300)"});
}

TEST_F(zvFSClientUtilTest, ANewEventsDirectoryMustNotExist) {
    connect("exists=1300");
    const zvResult result = zvFSClientUtil::createNewShadowDir(m_args);
    EXPECT_EQ(result.getResult(), zvFSClientUtil::directoryExists);
    EXPECT_TRUE(zvResult::isBusinessFailure(result.getFailureType()));
    const std::string message =
        "The event in [" + m_folder.file("root") +
        "\\1300] needs a new directory [1300] on the file server, which has one of this "
        "name already";
    EXPECT_EQ(narrow(result.getMessage()), message);
    EXPECT_EQ(zvRecordingLogger::lines("error"), Lines{message});
    m_args.setEventArgument("EventShadowDir", "1301");
    EXPECT_TRUE(zvFSClientUtil::createNewShadowDir(m_args).isOk());
    EXPECT_EQ(calls(), (Lines{"mkNewDir(1300)", "mkNewDir(1301)"}));
}

TEST_F(zvFSClientUtilTest, TheObserverOfATransferIsToldItsNotices) {
    struct Listener : Observer {
        void notice(const zvString& text) override { told.push_back(narrow(text)); }
    };
    connect("notice=continued");
    Listener everything;
    Listener transfer;
    zvFSClient::setObserver(&everything);
    EXPECT_TRUE(zvFSClientUtil::uploadEventFiles(m_args, m_attachments, &transfer).isOk());
    EXPECT_TRUE(zvFSClientUtil::uploadEventFiles(m_args, m_attachments).isOk());
    zvFSClient::setObserver(nullptr);
    EXPECT_EQ(std::count(transfer.told.begin(), transfer.told.end(), "continued"), 2);
    EXPECT_EQ(everything.told, (Lines{"continued", "continued"}));
}

TEST_F(zvFSClientUtilTest, UploadsEveryFileInItsOwnModeAndRemovesThem) {
    m_folder.write("a/text.txt", "12345");
    m_folder.write("b/picture", "123");
    m_folder.write("b/twice", "1");
    attach(path("a/text.txt"), 1, true);
    attach(path("b/picture"), 0, false);
    attach(path("b/twice"), 7, true);
    attach(path("b/twice"), 0, false);
    connect();
    Observer observer;
    const zvResult result = zvFSClientUtil::uploadEventFiles(m_args, m_attachments, &observer);
    EXPECT_TRUE(result.isOk());
    EXPECT_TRUE(result.getAdditionalInformation().empty());
    const std::string binaries = local("root/1300/1300_data.xml") + " " +
                                 local("root/1300/1300_attachments.xml") + " " + local("b/picture") + " " +
                                 local("b/twice");
    const Lines expected = {"removeLeftovers(1300,java.util.ArrayList[" + binaries + "])",
                            "setFileTransferMode(0)",
                            put("root/1300/1300_data.xml", "1300/1300_data.xml"),
                            "setFileTransferMode(0)",
                            put("root/1300/1300_attachments.xml", "1300/1300_attachments.xml"),
                            "setFileTransferMode(1)",
                            put("a/text.txt", "1300/text.txt"),
                            "setFileTransferMode(0)",
                            put("b/picture", "1300/picture"),
                            "setFileTransferMode(0)",
                            put("b/twice", "1300/twice")};
    EXPECT_EQ(calls(), expected);
    EXPECT_EQ(observer.told.size(), 5U);
    EXPECT_EQ(observer.told[2], path("a/text.txt") + " 5");
    EXPECT_FALSE(isThere("a/text.txt"));
    EXPECT_TRUE(isThere("b/picture") && isThere("b/twice") && isThere("root/1300/1300_data.xml"));
}

TEST_F(zvFSClientUtilTest, SendsNothingAgainThatHasArrived) {
    struct Resumed : Observer {
        bool hasArrived(const zvString& local) override { return local.find("text.txt") == -1; }
        void fileBegins(const zvString& local) override { told.push_back("begins " + narrow(local)); }
    };
    m_folder.write("a/text.txt", "12345");
    m_folder.write("b/left", "1");
    attach(path("a/text.txt"), 1, true);
    attach(path("b/left"), 0, true);
    attach(path("b/removed before"), 0, true);
    connect();
    Resumed observer;
    const zvResult result = zvFSClientUtil::uploadEventFiles(m_args, m_attachments, &observer);
    EXPECT_TRUE(result.isOk());
    EXPECT_TRUE(result.getAdditionalInformation().empty());
    EXPECT_EQ(observer.told, (Lines{"begins " + path("a/text.txt"), path("a/text.txt") + " 5"}));
    EXPECT_FALSE(isThere("a/text.txt"));
    EXPECT_FALSE(isThere("b/left"));
}

TEST_F(zvFSClientUtilTest, ReportsFilesThatCannotBeRemoved) {
    m_folder.write("full/of/files", "");  // not empty, and so not removable
    attach(path("full/of"));
    connect();
    const zvResult result = zvFSClientUtil::uploadEventFiles(m_args, m_attachments);
    EXPECT_TRUE(result.isOk());
    EXPECT_EQ(result.getAdditionalInformation(), ("Not removed: " + path("full/of")).c_str());
}

TEST_F(zvFSClientUtilTest, DownloadsIntoTheShadowDirectory) {
    fs::remove_all(m_folder.path() / "root" / "1300");
    attach("C:\\elsewhere\\a.txt", 1);
    attach("plain");
    connect();
    Observer observer;
    EXPECT_TRUE(zvFSClientUtil::downloadEventFiles(m_args, m_attachments, &observer).isOk());
    const Lines expected = {
        "setFileTransferMode(0)", get("1300/1300_data.xml", "root/1300/1300_data.xml"),
        "setFileTransferMode(0)", get("1300/1300_attachments.xml", "root/1300/1300_attachments.xml"),
        "setFileTransferMode(1)", get("1300/a.txt", "root/1300/a.txt"),
        "setFileTransferMode(0)", get("1300/plain", "root/1300/plain")};
    EXPECT_EQ(calls(), expected);
    EXPECT_EQ(observer.told.size(), 4U);
    EXPECT_TRUE(isThere("root/1300"));
}

TEST_F(zvFSClientUtilTest, AFailureOnTheServerKeepsEveryLocalFileAndNamesTheOneThatFailed) {
    m_folder.write("a.txt", "");
    attach(path("a.txt"));
    using Helper = zvResult (*)(const zvEventArguments&, const zvAttachmentList&, zvTransferObserver*);
    const Helper create = [](const zvEventArguments& args, const zvAttachmentList&, zvTransferObserver*) {
        return zvFSClientUtil::createShadowDir(args);
    };
    const Helper createNew = [](const zvEventArguments& args, const zvAttachmentList&, zvTransferObserver*) {
        return zvFSClientUtil::createNewShadowDir(args);
    };
    const std::string data = m_folder.file("root") + "\\1300\\1300_data.xml";
    struct Case {
        Helper helper;
        std::string method, message;
    };
    const Case cases[] = {
        {create, "mkDir", "Error in creating directory [1300]: full"},
        {createNew, "mkNewDir", "Error in creating directory [1300]: full"},
        {zvFSClientUtil::uploadEventFiles, "removeLeftovers",
         "Error in removing incomplete files in directory [1300]: full"},
        {zvFSClientUtil::uploadEventFiles, "put", "Error in uploading file [" + data + "]: full"},
        {zvFSClientUtil::uploadEventFiles, "setFileTransferMode",
         "Error in uploading file [" + data + "]: full"},
        {zvFSClientUtil::downloadEventFiles, "get", "Error in downloading file [" + data + "]: full"}};
    for (const Case& c : cases) {
        connect("throw." + c.method + "=java.io.IOException full");
        const zvResult result = c.helper(m_args, m_attachments, nullptr);
        EXPECT_EQ(result.getResult(), -1);
        EXPECT_TRUE(zvResult::isFileTransferFailure(result.getFailureType()));
        EXPECT_EQ(result.getMessage(), c.message.c_str());
        EXPECT_EQ(result.getAdditionalInformation().find(zvString("java.io.IOException: full") + javaLineEnd),
                  0);
        EXPECT_EQ(zvRecordingLogger::lines("error").back(), c.message);
        EXPECT_TRUE(isThere("a.txt"));
    }
}

TEST_F(zvFSClientUtilTest, RefusesWhatWouldLoseAFileBeforeAnythingMoves) {
    m_folder.write("x/a.txt", "");
    m_folder.write("y/A.TXT", "");
    const std::string shadow = m_folder.file("root") + "\\1300\\";
    const std::string same = "] would have the same name on the file server";
    struct Case {
        Lines attachments;
        const char* missingArgument;
        std::string message;
    };
    const Case cases[] = {
        {{path("x/a.txt"), path("y/A.TXT")},
         nullptr,
         "The files [" + path("x/a.txt") + "] and [" + path("y/A.TXT") + same},
        {{path("1300_data.xml")},
         nullptr,
         "The files [" + shadow + "1300_data.xml] and [" + path("1300_data.xml") + same},
        {{path("x") + "\\.."}, nullptr, "The path [" + path("x") + "\\..] names no file"},
        {{path("x") + "\\"}, nullptr, "The path [" + path("x") + "\\] names no file"},
        {{path("missing")}, nullptr, "The file [" + path("missing") + "] cannot be read"},
        {{},
         "DataFileName",
         "The argument \"DataFileName\" is missing, without which no file can be transferred"},
        {{},
         "EventShadowDir",
         "The argument \"EventShadowDir\" is missing, without which no file can be transferred"}};
    for (const Case& c : cases) {
        m_attachments.clear();
        std::for_each(c.attachments.begin(), c.attachments.end(), [this](const auto& a) { attach(a); });
        if (c.missingArgument != nullptr) {
            m_args.setEventArgument(c.missingArgument, "");
        }
        connect();
        const zvResult result = zvFSClientUtil::uploadEventFiles(m_args, m_attachments);
        EXPECT_EQ(result.getResult(), -1);
        EXPECT_TRUE(zvResult::isBusinessFailure(result.getFailureType()));
        EXPECT_EQ(result.getMessage(), c.message.c_str());
        EXPECT_EQ(zvRecordingLogger::lines("error"), Lines{c.message});
        EXPECT_TRUE(calls().empty());
    }
}

// With the real Java client, and without an encoding in the environment.
TEST_F(zvFSClientUtilTest, AnEventGoesToTheFileServerAndBack) {
    const zvScopedVariable classPath("CLASSPATH", deliveredClient);
    const zvScopedVariable all("LC_ALL", "");
    const zvScopedVariable language("LANG", "C");
    inProcessOfItsOwn([this] {
        const std::string name = u8"\u00E9 \u4E2D\U0001F600.txt";
        m_folder.write("server/other", "");
        m_folder.write("a/" + name, "some\ntext");
        attach(path("a/" + name), 1);
        connect(urlOf("server"));
        EXPECT_TRUE(zvFSClientUtil::createNewShadowDir(m_args).isOk());
        EXPECT_EQ(zvFSClientUtil::createNewShadowDir(m_args).getResult(), zvFSClientUtil::directoryExists);
        EXPECT_TRUE(zvFSClientUtil::createShadowDir(m_args).isOk());
        m_folder.write("server/1300/.zv-0123456789abcdef0123456789abcdef.part", "");
        connect(urlOf("server"));  // going on
        EXPECT_EQ(narrow(zvFSClientUtil::uploadEventFiles(m_args, m_attachments).getMessage()), "");
        EXPECT_FALSE(isThere("server/1300/.zv-0123456789abcdef0123456789abcdef.part"));
        EXPECT_FALSE(isThere("a/" + name));
        zvStringList names;
        zvFSClient::getInstance()->list("1300", names);
        EXPECT_EQ(names.numStrings(), 3);
        EXPECT_NE(names.getStringIndex(name.c_str()), -1);

        m_args.setEventArgument("RootShadowDir", path("back").c_str());
        fs::create_directory(m_folder.path() / "back");
        EXPECT_TRUE(zvFSClientUtil::downloadEventFiles(m_args, m_attachments).isOk());
        EXPECT_EQ(readAll(pathOf("back/1300/" + name)), std::string("some") + javaLineEnd + "text");
        EXPECT_EQ(readAll(pathOf("back/1300/1300_data.xml")), "<data/>");

        fs::remove(pathOf("server/1300/" + name));
        const zvResult gone = zvFSClientUtil::downloadEventFiles(m_args, m_attachments);
        EXPECT_TRUE(zvResult::isFileTransferFailure(gone.getFailureType()));
        EXPECT_NE(narrow(gone.getMessage()).find(name), std::string::npos);
    });
}

TEST_F(zvFSClientUtilTest, NeedsAClient) {
    const zvResult result = zvFSClientUtil::downloadEventFiles(m_args, m_attachments);
    EXPECT_EQ(result.getMessage(), "There is no instance of FSClient to transfer the event's files");
    EXPECT_TRUE(zvResult::isBusinessFailure(result.getFailureType()));
}

}  // namespace
