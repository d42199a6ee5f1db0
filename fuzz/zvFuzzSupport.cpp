#include "zvFuzzSupport.h"

#include <cstdint>
#include <filesystem>
#include <fstream>

#include "zvCharString.h"
#include "zvFuzzClock.h"
#include "zvLogger.h"
#include "zvLoggerLibrary.h"
#include "zvPlatform.h"

namespace fs = std::filesystem;

namespace {

bool secretLogged = false;

void listen(const char*, const char* message, const char*, int) {
    secretLogged = secretLogged || std::string_view(message).find(zvFuzz::secret) != std::string_view::npos;
}

// A temporary folder per process, removed at normal exit.
class Scratch {
public:
    Scratch() : m_folder(fs::temp_directory_path() / ("zvFuzz-" + std::to_string(zvPlatform::processId()))) {
        fs::create_directories(m_folder);
    }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;
    ~Scratch() {
        std::error_code ignored;
        fs::remove_all(m_folder, ignored);
    }
    const fs::path& folder() const { return m_folder; }

private:
    fs::path m_folder;
};

const fs::path& scratchFolder() {
    static const Scratch scratch;
    return scratch.folder();
}

}  // namespace

// The fuzzers' logging library: always ready, so that every message is composed.
bool InitializeLogger(const char*) { return true; }
void LogDebugMessage(const char* n, const char* m, const char* f, int l) { listen(n, m, f, l); }
void LogInfoMessage(const char* n, const char* m, const char* f, int l) { listen(n, m, f, l); }
void LogWarnMessage(const char* n, const char* m, const char* f, int l) { listen(n, m, f, l); }
void LogErrorMessage(const char* n, const char* m, const char* f, int l) { listen(n, m, f, l); }
void LogFatalMessage(const char* n, const char* m, const char* f, int l) { listen(n, m, f, l); }
void LogAlwaysMessage(const char* n, const char* m, const char* f, int l) { listen(n, m, f, l); }

namespace zvFuzz {

zvString textOf(std::string_view bytes) {
    zvString text(std::string(bytes).c_str());
    if (!text.empty()) {
        return text;
    }
    std::u16string units;
    for (const char byte : bytes) {
        units += static_cast<unsigned char>(byte);
    }
    return units.c_str();
}

std::u16string unitsOf(std::string_view bytes) {
    std::u16string units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        units += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                       static_cast<unsigned char>(bytes[i + 1]) << 8);
    }
    return units;
}

std::u16string unitsOf(const zvString& text) {
    return text.empty() ? std::u16string() : std::u16string(text.data(), text.data() + text.size());
}

std::string narrow(const zvString& text) { return zvCharString(text).data(); }

std::vector<std::string> linesOf(std::string_view input) {
    std::vector<std::string> lines(1);
    for (const char c : input) {
        if (c == '\n') {
            lines.emplace_back();
        } else {
            lines.back() += c;
        }
    }
    return lines;
}

std::string fileOf(std::string_view input) {
    std::string path = (scratchFolder() / "input").string();
    std::ofstream(path, std::ios::binary) << input;
    return path;
}

bool secretWasLogged() { return secretLogged; }

}  // namespace zvFuzz

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    zvPlatform::adoptUserLocale();
    zvPlatform::setEnvironment("GATEWAY_HOME", scratchFolder().string().c_str());
    zvFuzz::require(zvLogger::getInstance()->isReady(), "the log is read");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zvFuzzClock::run({reinterpret_cast<const char*>(data), size});
    return 0;
}
