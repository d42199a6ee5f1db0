#include <curl/curl.h>
#include <httplib.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <memory>

#include "zvBenchmark.h"
#include "zvBenchmarkSubjects.h"
#include "zvCommunicationFactory.h"
#include "zvEventArguments.h"

namespace {

constexpr int argumentCount = 20;

// A server in its own process, killed by the destructor.
class Server {
public:
    Server() {
        httplib::Server server;
        server.Post("/event", [](const httplib::Request&, httplib::Response& response) {
            response.set_content("taken", "text/plain");
        });
        m_port = server.bind_to_any_port("127.0.0.1");
        m_process = fork();
        if (m_process == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);  // even if this program crashes
            server.listen_after_bind();
            _exit(0);
        }
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server() {
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }

    std::string url() const { return "http://127.0.0.1:" + std::to_string(m_port) + "/event"; }

private:
    int m_port = -1;
    pid_t m_process = -1;
};

std::string name(int i) { return "Argument" + std::to_string(i); }
std::string value(int i) { return "the value of argument " + std::to_string(i) + ", + & ="; }

using Received = std::string;

std::size_t receive(char* data, std::size_t size, std::size_t count, void* sink) {
    static_cast<Received*>(sink)->append(data, size * count);
    return size * count;
}

// The library passes the whole wrapper.
std::size_t receiveOurs(char* data, std::size_t size, std::size_t count, void* sink) {
    return receive(data, size, count, static_cast<WriteMemoryCallbackWrapper*>(sink)->m_pUserData);
}

std::size_t postOurs(const std::string& url, const zvEventArguments& arguments) {
    const std::unique_ptr<zvCommunicationUtils> http(
        zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP));
    Received received;
    WriteMemoryCallbackWrapper sink{receiveOurs, &received};
    zvBenchmarkRequire(http->request(url.c_str(), arguments, &sink).isOk(), "The post failed");
    return received.size();
}

void appendEscaped(std::string& body, const std::string& text) {
    char* const escaped = curl_easy_escape(nullptr, text.c_str(), static_cast<int>(text.size()));
    body += escaped;
    curl_free(escaped);
}

std::size_t postCurl(const std::string& url,
                     const std::vector<std::pair<std::string, std::string>>& arguments) {
    std::string body;
    for (const auto& [name, value] : arguments) {
        body += body.empty() ? "" : "&";
        appendEscaped(body, name);
        body += '=';
        appendEscaped(body, value);
    }
    Received received;
    CURL* const curl = curl_easy_init();
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_POSTFIELDS, body.c_str());
    curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, receive);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &received);
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, 30L);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, 60L);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    zvBenchmarkRequire(curl_easy_perform(curl) == CURLE_OK, "libcurl's post failed");
    curl_easy_cleanup(curl);
    return received.size();
}

}  // namespace

void zvHttpBenchmark() {
    static const Server server;
    curl_global_init(CURL_GLOBAL_ALL);
    const auto ours = std::make_shared<zvEventArguments>(zvEventMirror, "somebody");
    std::vector<std::pair<std::string, std::string>> theirs = {{"EventName", "mirror"},
                                                               {"EventTriggeredByUser", "somebody"}};
    for (int i = 2; i < argumentCount; ++i) {
        ours->addEventArgument(name(i).c_str(), value(i).c_str());
        theirs.emplace_back(name(i), value(i));
    }
    zvBenchmarkRow("post 20 arguments over loopback", zvBenchmarkClock::wall)
        .ours([ours, url = server.url()] { return postOurs(url, *ours); })
        .peer("libcurl, same options", "1.05",
              [theirs, url = server.url()] { return postCurl(url, theirs); });
}
