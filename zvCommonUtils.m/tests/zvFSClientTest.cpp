#include "zvFSClient.h"

#include <fstream>

#include "zvJavaMachine.h"
#include "zvJavaTest.h"

namespace {

using zvFSClientTest = zvJavaTest;
using Client = zvFSClient;

// The messages of the client, without those of the bridge.
Lines clientLines() {
    Lines lines = zvRecordingLogger::lines();
    for (std::size_t i = lines.size(); i-- > 0;) {
        if (zvRecordingLogger::events()[i].file != "zvCommonUtils.m/src/zvFSClient") {
            lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i));
        }
    }
    return lines;
}

zvStringList texts(std::initializer_list<zvString> entries) {
    zvStringList list;
    for (const zvString& entry : entries) {
        list.addString(entry);
    }
    return list;
}
const zvStringList files = texts({"a.txt", u"\u00E9 b"});
const zvStringList* const noList = nullptr;

bool listsTwo(Client& client) {
    zvStringList found = texts({"before"});
    client.list("d", found);
    return found.numStrings() == 3 && found.getString(1) == "x" && found.getString(2) == "y z";
}

struct Operation {
    bool (*invoke)(Client& client);
    std::string call, name, started, finished;
};
const Operation operations[] = {
    {[](Client& c) { return c.get("r/f", "l\\f"), true; }, "get(r/f,l\\f)", "get",
     "Downloading remote file [r/f] to local file [l\\f]", "Successfully downloaded file [l\\f]"},
    {[](Client& c) { return c.get("r\\d", "l\\d", &files), true; },
     "get(r\\d,l\\d,java.util.ArrayList[a.txt \\u00E9 b])", "get", "Downloading files specified in the list",
     "Successfully downloaded file(s) specified in the list"},
    {[](Client& c) { return c.get("r", "l\\d", noList), true; }, "get(r,l\\d,null)", "get",
     "Downloading files specified in the list", "Successfully downloaded file(s) specified in the list"},
    {[](Client& c) { return c.get("r", "l\\d", "*\\y"), true; }, "get(r,l\\d,*\\y)", "get",
     "Downloading files specified by the filter [*\\y]",
     "Successfully downloaded file(s) specified by the filter"},
    {[](Client& c) { return c.put("l\\f", "r\\f"), true; }, "put(l\\f,r\\f)", "put",
     "Uploading local file [l\\f] to remote file [r\\f]", "Successfully uploaded file to [r\\f]"},
    {[](Client& c) { return c.put("l\\d", "r", &files), true; },
     "put(l\\d,r,java.util.ArrayList[a.txt \\u00E9 b])", "put", "Uploading files specified in the list",
     "Successfully uploaded file(s) specified in the list"},
    {[](Client& c) { return c.put("l\\d", "r", "*"), true; }, "put(l\\d,r,*)", "put",
     "Uploading files specified by the filter [*]", "Successfully uploaded file(s) specified by the filter"},
    {[](Client& c) { return c.mkDir("d"), true; }, "mkDir(d)", "mkDir",
     "Creating directory [d] on FileServer", "Successfully created directory [d]"},
    {[](Client& c) { return c.mkNewDir("new"); }, "mkNewDir(new)", "mkNewDir",
     "Creating new directory [new] on FileServer", "Successfully created new directory [new]"},
    {[](Client& c) { return !c.mkNewDir("there"); }, "mkNewDir(there)", "mkNewDir",
     "Creating new directory [there] on FileServer", "There is already a directory [there]"},
    {[](Client& c) { return c.removeLeftovers("d", texts({"l\\f"})), true; },
     "removeLeftovers(d,java.util.ArrayList[l\\f])", "removeLeftovers",
     "Removing incomplete files in FileServer directory [d]",
     "Successfully removed incomplete files in FileServer directory"},
    {[](Client& c) { return c.probe(); }, "probe()", "probe",
     "Writing and removing a probe in the root of FileServer", "Successfully wrote and removed a probe"},
    {[](Client& c) { return c.exists("there"); }, "exists(there)", "exists",
     "Checking if file [there] exists on FileServer", "File [there] exists on FileServer"},
    {[](Client& c) { return !c.exists(""); }, "exists()", "exists",
     "Checking if file [] exists on FileServer", "File [] does not exists on FileServer"},
    {listsTwo, "list(d)", "list", "Getting list of files in FileServer directory [d]",
     "Successfully got the list of files in FileServer directory"},
    {[](Client& c) { return c.setFileType(1), true; }, "setFileTransferMode(1)", "setFileType",
     "Inside zvFSClient::setFileType Type:[1]", "Finished zvFSClient::setFileType Type"}};

TEST_F(zvFSClientTest, ConnectsOnFirstUseAndDisconnectsWhenDestroyed) {
    EXPECT_EQ(Client::getInstance(), nullptr);
    const std::string path = configuration();
    Client* const client = Client::getInstance(path.c_str());
    EXPECT_EQ(Client::getInstance(), client);
    EXPECT_EQ(Client::getInstance("another"), client);
    Client::destroyInstance();
    EXPECT_EQ(Client::getInstance(), nullptr);
    Client::destroyInstance();
    EXPECT_EQ(calls(),
              (Lines{"initialize(" + path + ")", "getFileServerClient()", "connect()", "disconnect()"}));
    const Lines lines = {"info: Inside zvFSClient::getInstance",
                         "info: Calling zvFSClient::initialize",
                         "info: Initializing FSClient started",
                         "info: Getting instance of FileServerClientFactory",
                         "info: Got instance of [the factory]",
                         "info: Initializing FileServerClientFactory",
                         "info: Config file path [" + path + "]",
                         "info: Successfully initialized FileServerClientFactory",
                         "info: Creating an instance of FileServerCLient",
                         "info: Created instance of FileServerClient[the client]",
                         "info: Connecting to the FileServer",
                         "info: Successfully connected to the FileServer",
                         "info: Initializing FSClient finished",
                         "info: Finished zvFSClient::getInstance",
                         "info: Inside zvFSClient::getInstance",
                         "info: Finished zvFSClient::getInstance",
                         "info: Disconnecting to the FileServer",
                         "info: Successfully disconnected from the FileServer"};
    EXPECT_EQ(clientLines(), lines);
}

TEST_F(zvFSClientTest, EveryOperationIsOneCall) {
    Client& client = connect("exists=there\nlist=x|y z\n");
    testing::internal::CaptureStdout();
    for (const Operation& operation : operations) {
        EXPECT_TRUE(operation.invoke(client));
        EXPECT_EQ(calls(), Lines{operation.call});
        EXPECT_EQ(clientLines(), (Lines{"info: " + operation.started, "info: " + operation.finished}));
        forget();
    }
    // -Xcheck:jni warns here of missing exception checks and of too many local references.
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(zvFSClientTest, EveryOperationPassesOnWhatJavaThrows) {
    std::string script;
    for (const char* const method : {"get", "put", "mkDir", "mkNewDir", "removeLeftovers", "probe", "exists",
                                     "list", "setFileTransferMode", "disconnect"}) {
        script += std::string("throw.") + method + "=java.io.IOException no \\u20AC, no \\uD83D\\uDE00\n";
    }
    Client& client = connect(script);
    for (const Operation& operation : operations) {
        testing::internal::CaptureStdout();
        try {
            operation.invoke(client);
            ADD_FAILURE() << operation.call;
        } catch (const zvException& exception) {
            EXPECT_EQ(exception.getMessage(), u"no \u20AC, no \U0001F600");
            EXPECT_EQ(exception.getResult().getResult(), -1);
            const zvString trace = exception.getResult().getMessage();
            EXPECT_EQ(trace.find(u"java.io.IOException: no \u20AC, no \U0001F600"), 0);
            EXPECT_NE(trace.find("\tat com.vantorel.ep.products.fsclient."), -1);
            EXPECT_EQ(clientLines(), (Lines{"info: " + operation.started, "error: " + narrow(trace)}));
        }
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "Exception [class java.io.IOException]");
        forget();
    }
    EXPECT_NO_THROW(Client::destroyInstance());
    EXPECT_EQ(clientLines().front(), "info: Disconnecting to the FileServer");
    EXPECT_EQ(clientLines().back().find("error: java.io.IOException: no"), 0U);
    EXPECT_EQ(Client::getInstance(), nullptr);
}

TEST_F(zvFSClientTest, AnExceptionMayHaveNoTexts) {
    const std::pair<const char*, std::string> cases[] = {
        {"throw.mkDir=java.lang.IllegalStateException",
         std::string("java.lang.IllegalStateException") + javaLineEnd + "\tat "},
        {"throw.mkDir=com.vantorel.ep.products.fsclient.SpeechlessException", ""}};
    for (const auto& [script, trace] : cases) {
        Client& client = connect(script);
        try {
            client.mkDir("d");
            ADD_FAILURE() << script;
        } catch (const zvException& exception) {
            EXPECT_TRUE(exception.getMessage().empty());
            EXPECT_EQ(narrow(exception.getResult().getMessage()).find(trace), 0U);
            EXPECT_EQ(exception.getResult().getMessage().empty(), trace.empty());
        }
        client.setFileType(0);  // no exception is left pending
    }
}

TEST_F(zvFSClientTest, WithoutAJavaClientNothingIsInvoked) {
    const std::pair<const char*, const char*> cases[] = {
        {"throw.initialize=java.io.IOException bad file", "bad file"},
        {"throw.getFileServerClient=java.io.IOException no client", "no client"},
        {"noClient=", "Cannot invoke \"connect\" on null"}};
    for (const auto& [script, message] : cases) {
        try {
            Client::getInstance(configuration(script).c_str());
            ADD_FAILURE() << script;
        } catch (const zvException& exception) {
            EXPECT_EQ(exception.getMessage(), message);
        }
        Client* const client = Client::getInstance("another");
        ASSERT_NE(client, nullptr);
        forget();
        for (const Operation& operation : operations) {
            const std::string refusal =
                "FSClient is not initialized. Unable to invoke FSClient." + operation.name + "() operation";
            try {
                operation.invoke(*client);
                ADD_FAILURE() << operation.call;
            } catch (const zvException& exception) {
                EXPECT_EQ(narrow(exception.getMessage()), refusal);
                EXPECT_EQ(narrow(exception.getResult().getMessage()), refusal);
                EXPECT_EQ(exception.getResult().getResult(), -1);
            }
            EXPECT_EQ(clientLines(), (Lines{"info: " + operation.started, "error: " + refusal}));
            forget();
        }
        Client::destroyInstance();
        EXPECT_TRUE(calls().empty() && clientLines().empty());
    }
    // A toString() that throws only affects the log.
    connect("speechless=").mkDir("d");
}

TEST_F(zvFSClientTest, WithoutAConnectionOperationsReachJava) {
    const std::string script = "throw.connect=java.io.IOException refused\nexists=there\nlist=x|y z\n";
    EXPECT_THROW(Client::getInstance(configuration(script).c_str()), zvException);
    Client& client = *Client::getInstance();
    forget();
    for (const Operation& operation : operations) {
        EXPECT_TRUE(operation.invoke(client));
        EXPECT_EQ(calls(), Lines{operation.call});
        EXPECT_EQ(clientLines(), (Lines{"info: " + operation.started, "info: " + operation.finished}));
        forget();
    }
    Client::destroyInstance();
    EXPECT_TRUE(calls().empty() && clientLines().empty());
}

TEST_F(zvFSClientTest, AClientOfTheSitesOwnMayLackWhatIsNew) {
    const zvScopedVariable classPath("CLASSPATH", ZV_BARE_JAR);
    inProcessOfItsOwn([this] {
        Client& client = *Client::getInstance(configuration("exists=there\n").c_str());
        testing::internal::CaptureStdout();
        EXPECT_TRUE(client.mkNewDir("new"));
        EXPECT_FALSE(client.mkNewDir("there"));
        client.removeLeftovers("d", files);
        EXPECT_FALSE(client.probe());
        zvStringList faults;
        EXPECT_FALSE(Client::findFaults("nowhere", faults));
        EXPECT_EQ(faults.numStrings(), 0);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
        const Lines made = calls();
        EXPECT_EQ(made.size(), 6U);
        EXPECT_EQ(made[3] + made[4] + made[5], "exists(new)mkDir(new)exists(there)");
        EXPECT_TRUE(zvRecordingLogger::lines("error").empty());
        EXPECT_TRUE(zvRecordingLogger::lines("warn").empty());
    });
}

struct Observer : zvTransferObserver {
    void fileTransferred(const zvString&, zvInt64, zvInt64) override {}
    void notice(const zvString& text) override {
        told.push_back(narrow(text));
        throw zvException("nobody catches this");
    }
    Lines told;
};

TEST_F(zvFSClientTest, NoticesReachTheLogAndTheObserver) {
    Client& client = connect("notice=Retry 1 of 3, \\u20AC");
    Observer observer;
    Client::setObserver(&observer);
    client.put("l", "r");
    Client::setObserver(nullptr);
    client.put("l", "r");
    EXPECT_EQ(observer.told, Lines{u8"Retry 1 of 3, \u20AC"});
    EXPECT_EQ(zvRecordingLogger::lines("warn"), (Lines(2, u8"Retry 1 of 3, \u20AC")));
    EXPECT_EQ(calls().size(), 2U);
}

TEST_F(zvFSClientTest, TheDeliveredClientTellsItsRetriesWhileItConnects) {
    const zvScopedVariable classPath("CLASSPATH", deliveredClient);
    inProcessOfItsOwn([this] {
        Observer observer;
        Client::setObserver(&observer);
        const std::string script = "url=ftp://127.0.0.1:1\nretries=2\nretry-delay=0";
        EXPECT_NE(messageThrownBy([&] { Client::getInstance(configuration(script).c_str()); }), "");
        Client::setObserver(nullptr);
        ASSERT_EQ(observer.told.size(), 2U);
        const std::string expected = "Cannot connect to ftp://127.0.0.1:1: Connection refused";
        EXPECT_EQ(observer.told[0].substr(0, expected.size()), expected);
        EXPECT_NE(observer.told[1].find("; retry 2 of 2 in 0.0 s"), std::string::npos);
    });
}

TEST_F(zvFSClientTest, TheDeliveredClientFindsTheFaultsOfAConfiguration) {
    const zvScopedVariable classPath("CLASSPATH", ZV_CLIENT_JAR);
    inProcessOfItsOwn([this] {
        Client::setSecret("given", "Secret-7");
        zvStringList faults = texts({"before"});
        const std::string path =
            configuration("url=ftp://h\npassword=${secret:given}\nuser=${secret:none}\nretries=x");
        EXPECT_TRUE(Client::findFaults(path.c_str(), faults));
        ASSERT_EQ(faults.numStrings(), 5);
        EXPECT_EQ(faults.getString(1), "user");
        EXPECT_EQ(narrow(faults.getString(2)).find("the secret 'none' was not given"), 0U);
        EXPECT_EQ(faults.getString(3), "retries");
        EXPECT_EQ(faults.getString(4), "'x' is not a whole number from 0 to 1000");
        EXPECT_EQ(Client::getInstance(), nullptr);
    });
}

TEST_F(zvFSClientTest, TheMachineAndTheClientsJarAreTold) {
    const zvScopedVariable classPath("CLASSPATH", ZV_CLIENT_JAR);
    inProcessOfItsOwn([] {
        const zvResult started = zvJavaMachine::start();
        EXPECT_TRUE(started.isOk());
        EXPECT_GT(started.getMessage().find(" in "), 0);
        testing::internal::CaptureStdout();
        const zvResult found = zvJavaMachine::findClass("com.vantorel.ep.products.fsclient.FileServerClient");
        EXPECT_TRUE(found.isOk());
        EXPECT_TRUE(std::filesystem::equivalent(narrow(found.getMessage()), ZV_CLIENT_JAR))
            << narrow(found.getMessage());
        const zvResult missing = zvJavaMachine::findClass("no.such.Class");
        EXPECT_FALSE(missing.isOk());
        EXPECT_EQ(narrow(missing.getMessage()), "java.lang.NoClassDefFoundError: no/such/Class");
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    });
}

TEST_F(zvFSClientTest, SecretsAreGivenToJavaWhileItConnectsAndToNobodyElse) {
    inProcessOfItsOwn([this] {
        Client::setSecret("ftp", "old");
        Client::setSecret("ftp", u"Secret-7 \u20AC");
        Client::setSecret("", "no name");
        const std::string path = configuration("secret=ftp");
        Client& client = *Client::getInstance(path.c_str());
        client.mkDir("d");
        EXPECT_EQ(calls(), (Lines{"initialize(" + path + ") Secret-7 \\u20AC",
                                  "getFileServerClient() Secret-7 \\u20AC", "connect() Secret-7 \\u20AC",
                                  "mkDir(d) null"}));
        for (const std::string& line : zvRecordingLogger::lines()) {
            EXPECT_EQ(line.find("Secret-7"), std::string::npos);
        }
    });
}

TEST_F(zvFSClientTest, AMissingJavaClientIsAnException) {
    const zvScopedVariable classPath("CLASSPATH", "/nowhere");
    inProcessOfItsOwn([this] {
        const std::string message = messageThrownBy([this] { Client::getInstance(configuration().c_str()); });
        EXPECT_EQ(message.find("java.lang.NoClassDefFoundError: "
                               "com/vantorel/ep/products/fsclient/FileServerClientFactory"),
                  0U);
    });
}

TEST_F(zvFSClientTest, AnyTextRoundTrips) {
    const std::pair<const char16_t*, std::string> cases[] = {
        {u" a  b ", " a  b "},
        {u"\u00E4\u0416\u4E2D\uFFFD", "\\u00E4\\u0416\\u4E2D\\uFFFD"},
        {u"\U0001F600", "\\uD83D\\uDE00"},
        {u"\xDE00\xD83D", "\\uDE00\\uD83D"}};
    for (const auto& [text, escaped] : cases) {
        // Leading blanks of a value in a properties file are lost.
        Client& client = connect("list=|" + escaped);
        client.put(text, text);
        const std::string put = std::string("put(").append(escaped).append(",").append(escaped).append(")");
        EXPECT_EQ(calls(), Lines{put});
        zvStringList out;
        client.list("d", out);
        EXPECT_EQ(out.getString(0), "");
        EXPECT_EQ(out.getString(1), text);
    }
    zvStringList none;
    connect().list("d", none);  // answers null
    EXPECT_TRUE(none.empty());
}

TEST_F(zvFSClientTest, ALongListTakesNoMoreReferencesThanAShortOne) {
    constexpr int length = 1000;
    std::string script = "list=";
    zvStringList many;
    for (int i = 0; i < length; ++i) {
        script += "x|";
        many.addString("x");
    }
    Client& client = connect(script);
    testing::internal::CaptureStdout();
    client.put("l", "r", &many);
    zvStringList out;
    client.list("d", out);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(out.numStrings(), length);
}

long residentPages() {
    long size = 0;
    long resident = 0;
    std::ifstream("/proc/self/statm") >> size >> resident;
    return resident;
}

TEST_F(zvFSClientTest, ManyCallsDoNotLeak) {
    inProcessOfItsOwn([this] {
        // A heap that does not grow, and a compiler that is done after the first calls.
        const zvScopedVariable options("JAVA_TOOL_OPTIONS",
                                       "-Xms32m -Xmx32m -XX:+AlwaysPreTouch -XX:TieredStopAtLevel=1");
        zvRecordingLogger::onInitialize([](const std::string&) { return false; });
        Client& client = *Client::getInstance(configuration("quiet=\nlist=x|y z").c_str());
        const auto call = [&](int times) {
            for (int i = 0; i < times; ++i) {
                listsTwo(client);
                client.put("l", "r", &files);
            }
        };
        call(20000);
        const long before = residentPages();
        call(100000);
        constexpr long pages = 256;  // one leaked reference per call takes more
        EXPECT_LT(residentPages() - before, pages);
    });
}

}  // namespace
