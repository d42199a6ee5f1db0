#include <gtest/gtest.h>

#include <clocale>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "zvCommunicationTestSupport.h"
#include "zvFormBody.h"
#include "zvLoopbackServer.h"

namespace {

using zvRecordingLogger::lines;

// A sink that keeps what it gets, and takes no piece behind `limit` bytes.
struct Collector : WriteMemoryCallbackWrapper {
    explicit Collector(std::size_t bytes = std::string::npos) : limit(bytes) {
        m_pUserData = this;
        m_pWriteFunction = [](char* data, std::size_t size, std::size_t count, void* sink) {
            auto* const self =
                static_cast<Collector*>(static_cast<WriteMemoryCallbackWrapper*>(sink)->m_pUserData);
            if (self->text.size() >= self->limit) {
                return std::size_t{0};
            }
            self->text.append(data, size * count);
            ++self->pieces;
            return size * count;
        };
    }

    std::size_t limit;
    std::string text;
    int pieces = 0;
};

TEST_F(zvCommunicationUtilsTest, AnswersAreReportedByTheirStatus) {
    LoopbackServer server;
    const struct {
        const char* path;
        const char* outcome;
    } cases[] = {{"/200", "0||200"},
                 {"/204", "0||204"},
                 {"/302", "0||302"},
                 {"/399", "0||399"},
                 {"/400", "-1|HTTP status 400|400"},
                 {"/404", "-1|HTTP status 404|404"},
                 {"/500", "-1|HTTP status 500|500"}};
    for (const auto& [path, outcome] : cases) {
        EXPECT_EQ(request(server.url(path)), outcome);
    }
    EXPECT_EQ(server.m_requests, 7) << "a redirection was followed";
    EXPECT_EQ(server.m_strContentType, "application/x-www-form-urlencoded");
    EXPECT_EQ(lines("error"), (std::vector<std::string>{
                                  "Following error occured while sending the request : HTTP status 400",
                                  "Following error occured while sending the request : HTTP status 404",
                                  "Following error occured while sending the request : HTTP status 500"}));
}

TEST_F(zvCommunicationUtilsTest, TheLogFollowsARequestStepByStep) {
    // What is read for a request is not told.
    m_folder.write("config/client-config.ini",
                   "local-server-url=x\nhttp-stall-timeout=5\nno value\nhttp-connect-timeout=0\n");
    const auto utils = create();
    utils->request("", m_args, nullptr);
    utils->queryResponse();
    utils->queryResponseHeader();
    EXPECT_EQ(zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalNone), nullptr);

    const std::string body = "EventName=mirror&EventTriggeredByUser=anna";
    const std::string factory = "zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalEnum)";
    const std::string post = "zvHttpUtils::request(zvString,zvEventArguments,WriteMemoryCallbackWrapper*)";
    const std::string compute = "zvHttpUtils::computeHttpRequestArgs(zvEventArguments)";
    const std::string failure = "error: Following error occured while sending the request : ";
    EXPECT_EQ(
        lines(),
        (std::vector<std::string>{
            "debug: Inside function " + factory, "debug: Exiting function " + factory,
            "debug: Inside function " + post, "debug: Inside function " + compute, "info: Args are : " + body,
            "debug: Exiting function " + compute, "info: Parameters to send : \"" + body + "\"",
            failure + "URL using bad/illegal format or missing URL", "debug: Exiting function " + post,
            "warn: Function zvHttpUtils::queryResponse() NOT YET IMPLEMENTED",
            "warn: Function zvHttpUtils::queryResponseHeader() NOT YET IMPLEMENTED",
            "debug: Inside function " + factory, "error: Undefined Protocol.",
            "debug: Exiting function " + factory}));
    EXPECT_EQ(zvRecordingLogger::events()[0].file, "zvCommunicationUtils.m/src/zvCommunicationFactory");
    EXPECT_EQ(zvRecordingLogger::events()[2].file, "zvCommunicationUtils.m/src/zvHttpUtils");
}

TEST_F(zvCommunicationUtilsTest, ACopyAsTheBaseRefuses) {
    const std::unique_ptr<zvCommunicationUtils> http(
        zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP));
    zvCommunicationUtils copy(*http);
    zvRecordingLogger::reset();
    const zvResult result = copy.request("http://localhost", zvEventArguments(zvEventMirror, "u"), nullptr);
    copy.queryResponse();
    EXPECT_EQ(result.getResult(), -1);
    EXPECT_EQ(lines(), (std::vector<std::string>{
                           "error: " + narrow(result.getMessage()),
                           "warn: Function zvCommunicationUtils::queryResponse() has no protocol"}));
}

TEST_F(zvCommunicationUtilsTest, NamesAndValuesTravelAsEscapedUtf8InEveryLocale) {
    const struct {
        const char16_t* text;
        const char* wire;
    } cases[] = {
        {u"", ""},
        {u"Aa-Zz_0.9~", "Aa-Zz_0.9~"},
        {u"&=+ %", "%26%3D%2B%20%25"},
        {u"a\r\n\t\x01\x7f", "a%0D%0A%09%01%7F"},
        {u"\u00e4\u07ff\u0800\uffff", "%C3%A4%DF%BF%E0%A0%80%EF%BF%BF"},
        {u"\U00010000\U0001F600\U0010FFFF", "%F0%90%80%80%F0%9F%98%80%F4%8F%BF%BF"},
        {u"\xd83d", "%EF%BF%BD"},
        {u"\xde00\xd83dx", "%EF%BF%BD%EF%BF%BDx"},
    };
    std::string expected = "EventName=mirror&EventTriggeredByUser=anna";
    int row = 0;
    for (const auto& [text, wire] : cases) {
        const std::string name = "k" + std::to_string(row++);
        m_args.setEventArgument(zvString(name.c_str()) + text, text);
        expected += "&" + name + wire + "=" + wire;
    }
    LoopbackServer server;
    for (const char* const locale : {"C", "C.UTF-8"}) {
        std::setlocale(LC_ALL, locale);
        EXPECT_EQ(request(server.url() + zvString(u"?\u00e4")), "0||200") << locale;
        EXPECT_EQ(server.m_strBody, expected) << locale;
    }
    zvPlatform::adoptUserLocale();
}

TEST_F(zvCommunicationUtilsTest, SecretsTravelButAreNotLogged) {
    m_args.setEventArgument("KPDMPasswd", "s3cret 1");
    m_args.setEventArgument("LoginPassword", "s3cret2");
    m_args.setEventArgument("MyLoginPassword=s3cret3", "s3cret4");
    m_args.setEventArgument("Note", "LoginPassword=s3cret5");
    m_args.setEventArgument("Remark", "a b");
    LoopbackServer server;
    EXPECT_EQ(request(server.url()), "0||200");
    const std::string head = "EventName=mirror&EventTriggeredByUser=anna&";
    EXPECT_EQ(server.m_strBody,
              head +
                  "KPDMPasswd=s3cret%201&LoginPassword=s3cret2&MyLoginPassword%3Ds3cret3=s3cret4&"
                  "Note=LoginPassword%3Ds3cret5&Remark=a%20b");
    const std::string shown = head +
                              "KPDMPasswd=********&LoginPassword=********&LoginPassword=********&"
                              "Note=********&Remark=a%20b";
    EXPECT_EQ(lines("info"),
              (std::vector<std::string>{"Args are : " + shown, "Parameters to send : \"" + shown + "\""}));
}

TEST_F(zvCommunicationUtilsTest, NothingIsComposedForALogThatNobodyReads) {
    zvRecordingLogger::onInitialize([](const std::string&) { return false; });
    const zvFormBody body(m_args);
    EXPECT_EQ(body.shown(), "");
    EXPECT_EQ(body.sent(), "EventName=mirror&EventTriggeredByUser=anna");
}

TEST_F(zvCommunicationUtilsTest, ManyAndLongArgumentsArriveWhole) {
    constexpr int count = 10000;
    std::string expected = "EventName=mirror&EventTriggeredByUser=anna";
    for (int i = 0; i < count; ++i) {
        const std::string name = "N" + std::to_string(count + i);
        m_args.setEventArgument(name.c_str(), "v");
        expected += "&" + name + "=v";
    }
    // Longer, when it is escaped, than what libcurl escapes at once.
    std::string longValue;
    longValue.resize(8'100'000, '%');
    m_args.setEventArgument("Z", longValue.c_str());
    expected += "&Z=";
    for (std::size_t i = 0; i < longValue.size(); ++i) {
        expected += "%25";
    }
    zvRecordingLogger::onInitialize([](const std::string&) { return false; });
    LoopbackServer server;
    EXPECT_EQ(request(server.url()), "0||200");
    EXPECT_TRUE(server.m_strBody == expected) << server.m_strBody.size() << " of " << expected.size();
}

TEST_F(zvCommunicationUtilsTest, TheSinkGetsTheResponseInPieces) {
    constexpr std::size_t length = 10u << 20u;
    m_folder.write("config/client-config.ini", "http-answer-limit=20000000\n");
    LoopbackServer server;
    server.m_answer = [](httplib::Response& response) {
        response.set_content(std::string(length - 1, 'x') + "y", "text/plain");
    };
    Collector all;
    EXPECT_EQ(request(server.url(), &all), "0||200");
    EXPECT_TRUE(all.text == std::string(length - 1, 'x') + "y");
    EXPECT_GT(all.pieces, 1);

    Collector ofAnError;
    request(server.url("/500"), &ofAnError);
    EXPECT_EQ(ofAnError.text.size(), length);

    Collector some(1);
    EXPECT_EQ(request(server.url(), &some), "-1|Failed writing received data to disk/application|200");
    EXPECT_EQ(some.pieces, 1);

    server.m_answer = [](httplib::Response&) {};
    Collector none;
    EXPECT_EQ(request(server.url(), &none), "0||200");
    EXPECT_EQ(none.pieces, 0);
}

TEST_F(zvCommunicationUtilsTest, WithoutASinkTheResponseIsDiscarded) {
    LoopbackServer server;
    server.m_answer = [](httplib::Response& response) { response.set_content("answer", "text/plain"); };
    WriteMemoryCallbackWrapper withoutFunction;
    testing::internal::CaptureStdout();
    EXPECT_EQ(request(server.url(), nullptr), "0||200");
    EXPECT_EQ(request(server.url(), &withoutFunction), "0||200");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(zvCommunicationUtilsTest, UnusableUrlsAndAbsentServersAreRefused) {
    m_folder.write("config/client-config.ini", "http-connect-timeout=3\n");
    const zvString goneUrl = LoopbackServer().url();
    const std::string malformed = "-1|URL using bad/illegal format or missing URL|";
    const std::string unsupported = "-1|Unsupported protocol|";
    const struct {
        zvString url;
        std::string outcome;
    } cases[] = {{"", malformed},
                 {"http://", malformed},
                 {"http://127.0.0.1:99999/", malformed},
                 {"http://bad host/", malformed},
                 {("file://" + m_folder.file("config/client-config.ini")).c_str(), unsupported},
                 {"ftp://127.0.0.1/", unsupported},
                 {"nonsense://127.0.0.1/", unsupported},
                 {goneUrl, "-1|Couldn't connect to server|"}};
    for (const auto& [url, outcome] : cases) {
        EXPECT_EQ(request(url), outcome) << narrow(url);
    }
    // Without a network nobody may tell in time that the name is unknown.
    const std::string unknown = request("http://nobody.invalid/");
    EXPECT_TRUE(unknown == "-1|Couldn't resolve host name|" || unknown == "-1|Timeout was reached|")
        << unknown;
}

TEST_F(zvCommunicationUtilsTest, AServerThatHangsUpIsAFailure) {
    LoopbackServer midway;
    midway.m_answer = [](httplib::Response& response) {
        response.set_content_provider(100, "text/plain",
                                      [](std::size_t, std::size_t, httplib::DataSink& out) {
                                          out.write("half", 4);
                                          return false;
                                      });
    };
    Collector half;
    EXPECT_EQ(request(midway.url(), &half), "-1|Transferred a partial file|200");
    EXPECT_EQ(half.text, "half");

    // Which of the two sides notices first is up to the system, and with it libcurl's message.
    auto server = std::make_unique<httplib::Server>();
    server->set_keep_alive_max_count(0);
    const zvResult result = create()->request(LoopbackServer(std::move(server)).url(), m_args, nullptr);
    EXPECT_EQ(result.getResult(), -1);
    EXPECT_FALSE(result.getMessage().empty());
    EXPECT_TRUE(result.getAdditionalInformation().empty());
}

TEST_F(zvCommunicationUtilsTest, AServerThatNeverAnswersIsGivenUp) {
    m_folder.write("config/client-config.ini", "http-stall-timeout=1\r\nhttp-connect-timeout=1\n");
    auto holding = std::make_unique<httplib::Server>();
    holding->new_task_queue = [] { return new HoldingQueue; };
    LoopbackServer server(std::move(holding));
    // An empty body: libcurl's average of the last seconds then starts at 0.
    zvEventArguments* const none = zvEventArguments::parseEventArguments(zvString());
    m_args = *none;
    none->destroy();
    EXPECT_EQ(request(server.url()), "-1|Timeout was reached|") << "no answer";
    EXPECT_EQ(request(server.url("/200", "https")), "-1|Timeout was reached|") << "no handshake";
    EXPECT_TRUE(lines("warn").empty());
}

TEST_F(zvCommunicationUtilsTest, NonsenseTimeoutsAreWarnedOfOncePerUtility) {
    for (const char* const nonsense : {"0", "-1", "soon", "1e3", "30s", "86401", "99999999999", " "}) {
        m_folder.write("config/client-config.ini",
                       std::string("http-connect-timeout=") + nonsense +
                           "\nhttp-stall-timeout=86400\nhttp-connect-timeout=worse\n");
        zvRecordingLogger::reset();
        const auto utils = create();
        EXPECT_TRUE(lines("warn").empty()) << "nothing is read before it is needed";
        utils->request("", m_args, nullptr);
        utils->request("", m_args, nullptr);
        ASSERT_EQ(lines("warn").size(), 1u) << nonsense;
        EXPECT_NE(
            lines("warn").front().find("\"http-connect-timeout\" of the file \"client-config.ini\" stays 30"),
            std::string::npos)
            << lines("warn").front();
    }
}

}  // namespace
