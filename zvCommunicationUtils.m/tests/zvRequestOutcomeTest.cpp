#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <thread>
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

// Writes so many bytes a time, and waits.
auto endless(std::size_t bytes, int milliseconds) {
    return [bytes, milliseconds](std::size_t, httplib::DataSink& out) {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
        const std::string piece(bytes, 'x');
        return out.write(piece.data(), piece.size());
    };
}

TEST_F(zvRequestOutcomeTest, AnAnswerWithoutAnEndIsLeft) {
    constexpr char limits[] = "http-answer-limit=2000\nhttp-timeout=1\nhttp-stall-timeout=60\n";
    const std::string tooLong = "the answer is longer than 2000 bytes, \"http-answer-limit\"";
    const struct {
        const char* name;
        std::function<void(httplib::Response&)> answer;
        Failure failure;
        std::string text;
    } cases[] = {
        {"just not too long", [](auto& to) { to.set_content(std::string(1800, 'x'), "text/plain"); },
         Failure::none, ""},
        {"long", [](auto& to) { to.set_content(std::string(2000, 'x'), "text/plain"); }, Failure::answerLimit,
         tooLong},
        {"endless chunks", [](auto& to) { to.set_chunked_content_provider("a/b", endless(1000, 0)); },
         Failure::answerLimit, tooLong},
        {"an endless body",
         [](auto& to) {
             to.set_content_provider(std::numeric_limits<int>::max(), "a/b",
                                     [](auto, auto, auto& out) { return endless(1000, 0)(0, out); });
         },
         Failure::answerLimit, tooLong},
        {"many headers",
         [](auto& to) {
             for (int i = 0; i < 20; ++i) {
                 to.set_header("Name-" + std::to_string(i), std::string(100, 'x'));
             }
         },
         Failure::answerLimit, tooLong},
        {"a drip", [](auto& to) { to.set_chunked_content_provider("a/b", endless(1, 50)); }, Failure::timeout,
         ": \"http-timeout\" of client-config.ini"},
    };
    m_folder.write("config/client-config.ini", limits);
    for (const auto& [name, answer, failure, text] : cases) {
        LoopbackServer server;
        server.m_answer = answer;
        const zvResult result = m_pUtils->request(server.url(), m_args, nullptr);
        const zvRequestOutcome outcome = m_pUtils->lastOutcome();
        EXPECT_EQ(result.isOk(), failure == Failure::none) << name;
        EXPECT_EQ(outcome.failure, failure) << name;
        EXPECT_EQ(outcome.status, 200) << name;
        EXPECT_NE(narrow(outcome.errorText).find(text), std::string::npos) << narrow(outcome.errorText);
    }
}

TEST_F(zvRequestOutcomeTest, TheCallersTimeLimitCountsIfItIsShorter) {
    m_folder.write("config/client-config.ini", "http-timeout=600\n");
    LoopbackServer server;
    server.m_answer = [](auto& to) { to.set_chunked_content_provider("a/b", endless(1, 50)); };
    m_pUtils->setTimeLimit(1);
    EXPECT_EQ(outcomeOf(server.url()).failure, Failure::timeout);
}

TEST_F(zvRequestOutcomeTest, AStalledServerIsATimeout) {
    m_folder.write("config/client-config.ini", "http-stall-timeout=1\nhttp-connect-timeout=1\n");
    auto holding = std::make_unique<httplib::Server>();
    holding->new_task_queue = [] { return new HoldingQueue; };
    LoopbackServer server(std::move(holding));
    EXPECT_EQ(outcomeOf(server.url("/200", "https")).failure, Failure::timeout);
}

}  // namespace
