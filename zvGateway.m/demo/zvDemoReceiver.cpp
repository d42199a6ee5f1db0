#include <httplib.h>

#include <CLI/CLI.hpp>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace fs = std::filesystem;

namespace {

constexpr char host[] = "127.0.0.1";
constexpr char path[] = "/gateway/events";

/// The folder into which bodies are put, each as a file of its own that appears whole.
class Inbox {
public:
    explicit Inbox(fs::path folder) : m_folder(std::move(folder)) { fs::create_directories(m_folder); }

    void put(const std::string& name, const std::string& content) const {
        const fs::path part = m_folder / (name + ".part");
        std::ofstream stream(part, std::ios::binary);
        stream << content;
        stream.close();
        if (!stream) {
            throw std::runtime_error(part.string() + " cannot be written");
        }
        fs::rename(part, m_folder / name);
    }

private:
    fs::path m_folder;
};

// A plain handler would refuse a form of more than 8192 bytes.
std::string bodyOf(const httplib::ContentReader& reader) {
    std::string body;
    reader([&body](const char* data, std::size_t size) {
        body.append(data, size);
        return true;
    });
    return body;
}

void serve(const std::string& folder, int status) {
    const Inbox inbox(folder);
    std::atomic<int> count{0};
    httplib::Server server;
    server.set_read_timeout(std::chrono::minutes(1));  // many events at once make a machine slow
    server.Post(path, [&](const httplib::Request&, httplib::Response& response,
                          const httplib::ContentReader& reader) {
        const int number = ++count;
        inbox.put(std::to_string(number) + ".form", bodyOf(reader));
        response.status = status;
        response.set_content("event " + std::to_string(number) + " received\n", "text/plain");
    });
    const int port = server.bind_to_any_port(host);
    if (port < 0) {
        throw std::runtime_error("there is no free port");
    }
    // Whoever started the receiver waits for this file.
    inbox.put("url", "http://" + std::string(host) + ":" + std::to_string(port) + path + "\n");
    server.listen_after_bind();
}

int runProgram(int argc, char** argv) {
    CLI::App program(
        "Receives what gateway programs post, on a free port of this host, until it is stopped.");
    program.allow_windows_style_options(false);  // "/" begins a path
    std::string folder;
    int status = 200;
    program.add_option("folder", folder, "Gets the file \"url\", and N.form with the body of the N-th post")
        ->required();
    program.add_option("--status", status, "The HTTP status of every answer")->capture_default_str();
    CLI11_PARSE(program, argc, argv);
    serve(folder, status);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return runProgram(argc, argv);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "zvdemoreceiver: %s\n", exception.what());
        return 1;
    }
}
