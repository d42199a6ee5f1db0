#include <gtest/gtest.h>

#include <ctime>
#include <memory>
#include <string>
#include <utility>

#include "zvCommunicationTestSupport.h"
#include "zvLoopbackServer.h"

namespace {

using Failure = zvRequestOutcome::Failure;

class zvRequestOutcomeTest : public zvCommunicationUtilsTest {
protected:
    zvRequestOutcome outcomeOf(const zvString& url) {
        m_pUtils->request(url, m_args, nullptr);
        return m_pUtils->lastOutcome();
    }

    std::unique_ptr<zvCommunicationUtils> m_pUtils = create();
};

TEST_F(zvRequestOutcomeTest, ARedirectHasAnAbsoluteTarget) {
    LoopbackServer server;
    EXPECT_EQ(outcomeOf(server.url()).location, zvString());
    for (const char* const path : {"/301", "/302", "/303", "/307", "/308"}) {
        const zvRequestOutcome outcome = outcomeOf(server.url(path));
        EXPECT_EQ(outcome.status, std::stoi(path + 1));
        EXPECT_EQ(outcome.location, server.url("/200")) << path;
        EXPECT_EQ(outcome.failure, Failure::none);
        EXPECT_TRUE(outcome.errorText.empty());
    }
}

TEST_F(zvRequestOutcomeTest, RetryAfterIsSecondsFromNow) {
    const auto dateIn = [](int seconds) {
        const std::time_t then = std::time(nullptr) + seconds;
        char text[40];
        std::strftime(text, sizeof(text), "%a, %d %b %Y %H:%M:%S GMT", std::gmtime(&then));
        return std::string(text);
    };
    const struct {
        std::string header;
        int atLeast;
        int atMost;
    } cases[] = {{"0", 0, 0},         {"1", 1, 1},  {"120", 120, 120}, {dateIn(90), 80, 90},
                 {dateIn(-90), 0, 0}, {"-5", 0, 0}, {"soon", 0, 0}};
    LoopbackServer server;
    EXPECT_EQ(outcomeOf(server.url("/503")).retryAfterSeconds, 0);
    for (const auto& [header, atLeast, atMost] : cases) {
        server.m_answer = [text = header](httplib::Response& response) {
            response.set_header("Retry-After", text);
        };
        const zvRequestOutcome outcome = outcomeOf(server.url("/503"));
        EXPECT_GE(outcome.retryAfterSeconds, atLeast) << header;
        EXPECT_LE(outcome.retryAfterSeconds, atMost) << header;
    }
}

TEST_F(zvRequestOutcomeTest, FailuresSayWhatWasMissing) {
    const zvString gone = LoopbackServer().url();
    const std::string port = narrow(gone).substr(std::string("http://127.0.0.1:").size(), 5);
    const struct {
        zvString url;
        Failure failure;
        std::string text;
    } cases[] = {{"", Failure::settings, "URL"},
                 {"ftp://127.0.0.1/", Failure::settings, "ftp"},
                 {gone, Failure::connect, "127.0.0.1 port " + port.substr(0, port.find('/'))}};
    for (const auto& [url, failure, text] : cases) {
        const zvRequestOutcome outcome = outcomeOf(url);
        EXPECT_EQ(outcome.failure, failure) << narrow(url);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_NE(narrow(outcome.errorText).find(text), std::string::npos) << narrow(outcome.errorText);
    }
}

TEST_F(zvRequestOutcomeTest, ABrokenConnectionIsTold) {
    LoopbackServer midway;
    midway.m_answer = [](httplib::Response& response) {
        response.set_content_provider(100, "text/plain",
                                      [](std::size_t, std::size_t, httplib::DataSink&) { return false; });
    };
    const zvRequestOutcome torn = outcomeOf(midway.url());
    EXPECT_EQ(torn.failure, Failure::connection);
    EXPECT_EQ(torn.status, 200);

    auto server = std::make_unique<httplib::Server>();
    server->set_keep_alive_max_count(0);
    EXPECT_EQ(outcomeOf(LoopbackServer(std::move(server)).url()).failure, Failure::connection);
    // The next request starts from nothing.
    midway.m_answer = [](httplib::Response&) {};
    EXPECT_EQ(outcomeOf(midway.url("/204")).failure, Failure::none);
}

TEST_F(zvRequestOutcomeTest, AConnectionAloneSendsNothing) {
    LoopbackServer server;
    const zvString gone = LoopbackServer().url();
    const struct {
        zvString url;
        bool isOk;
        Failure failure;
    } cases[] = {{server.url("/503"), true, Failure::none},
                 {gone, false, Failure::connect},
                 {"", false, Failure::settings},
                 {server.url("/200", "https"), false, Failure::tls}};
    for (const auto& [url, isOk, failure] : cases) {
        const zvResult result = m_pUtils->connect(url);
        EXPECT_EQ(result.isOk(), isOk) << narrow(url) << ": " << narrow(result.getMessage());
        EXPECT_EQ(m_pUtils->lastOutcome().failure, failure) << narrow(url);
    }
    EXPECT_EQ(server.m_requests, 0);
    EXPECT_FALSE(zvCommunicationUtils(*m_pUtils).connect(server.url()).isOk()) << "has no protocol";
}

TEST_F(zvRequestOutcomeTest, AStalledServerIsATimeout) {
    m_folder.write("config/client-config.ini", "http-stall-timeout=1\nhttp-connect-timeout=1\n");
    auto holding = std::make_unique<httplib::Server>();
    holding->new_task_queue = [] { return new HoldingQueue; };
    LoopbackServer server(std::move(holding));
    EXPECT_EQ(outcomeOf(server.url("/200", "https")).failure, Failure::timeout);
}

}  // namespace
