#ifndef ZV_LOOPBACK_SERVER_H
#define ZV_LOOPBACK_SERVER_H

#include <httplib.h>

#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "zvString.h"

/// Holds every connection, without a word, until the server is stopped.
class HoldingQueue : public httplib::TaskQueue {
public:
    void enqueue(std::function<void()> connection) override { m_held.push_back(std::move(connection)); }
    void shutdown() override {
        for (const std::function<void()>& connection : m_held) {
            connection();
        }
    }

private:
    std::vector<std::function<void()>> m_held;
};

/// A server on a loopback port, in a thread of its own. POST to "/<status>" is answered with that status.
class LoopbackServer {
public:
    explicit LoopbackServer(std::unique_ptr<httplib::Server> server = std::make_unique<httplib::Server>())
        : m_pServer(std::move(server)), m_port(m_pServer->bind_to_any_port("127.0.0.1")) {
        if (m_port < 0) {
            throw std::runtime_error("no port on the loopback interface");
        }
        // A busy machine is no reason to give a test's client up.
        m_pServer->set_read_timeout(std::chrono::minutes(1));
        m_pServer->set_write_timeout(std::chrono::minutes(1));
        m_pServer->Post(R"(/(\d+))", [this](const httplib::Request& request, httplib::Response& response,
                                            const httplib::ContentReader& read) {
            ++m_requests;
            m_strBody.clear();
            read([this](const char* data, std::size_t size) {
                m_strBody.append(data, size);
                return true;
            });
            m_strContentType = request.get_header_value("Content-Type");
            response.status = std::stoi(request.matches[1]);
            response.set_header("Location", "/200");
            m_answer(response);
        });
        m_thread = std::thread([this] { m_pServer->listen_after_bind(); });
    }
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;
    ~LoopbackServer() {
        while (!m_pServer->is_running()) {
            std::this_thread::yield();
        }
        m_pServer->stop();
        m_thread.join();
    }

    zvString url(const std::string& path = "/200", const std::string& scheme = "http") const {
        return (scheme + "://127.0.0.1:" + std::to_string(m_port) + path).c_str();
    }

    std::function<void(httplib::Response&)> m_answer = [](httplib::Response&) {};
    int m_requests = 0;
    std::string m_strBody;
    std::string m_strContentType;

private:
    std::unique_ptr<httplib::Server> m_pServer;
    int m_port;
    std::thread m_thread;
};

#endif
