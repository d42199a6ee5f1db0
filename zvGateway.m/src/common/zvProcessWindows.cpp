#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <string>

#include "zvCommonUtils.h"
#include "zvNativePath.h"
#include "zvProcess.h"

namespace {

std::wstring widened(const std::string& text) { return toNativePath(text.c_str()).native(); }

// Whatever the text: what is no UTF-16 is replaced.
std::string narrowed(const wchar_t* text) {
    const int size = ::WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(size), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, narrow.data(), size, nullptr, nullptr);
    narrow.resize(narrow.empty() ? 0 : narrow.size() - 1);
    return narrow;
}

HANDLE handleOf(std::FILE* stream) { return reinterpret_cast<HANDLE>(::_get_osfhandle(_fileno(stream))); }

}  // namespace

// The narrow command line lacks what the code page lacks.
std::vector<std::string> zvProcess::takeArguments(int, char**) {
    zvCommonUtils::adoptUtf8();
    int count = 0;
    std::vector<std::string> arguments;
    wchar_t** const texts = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    for (int i = 1; i < count; ++i) {
        arguments.push_back(narrowed(texts[i]));
    }
    ::LocalFree(texts);
    return arguments;
}

// A console shows wide text whatever its code page; everything else gets UTF-8.
void zvProcess::write(std::FILE* stream, const std::string& text) {
    DWORD mode = 0;
    const HANDLE console = handleOf(stream);
    if (::GetConsoleMode(console, &mode) == 0) {
        std::fputs(text.c_str(), stream);
        return;
    }
    constexpr std::size_t longestPiece = 8192;  // what every console takes at once
    const std::wstring wide = widened(text);
    DWORD written = 0;
    std::fflush(stream);
    for (std::size_t at = 0; at < wide.size(); at += written) {
        const std::size_t count = std::min<std::size_t>(wide.size() - at, longestPiece);
        if (::WriteConsoleW(console, wide.data() + at, static_cast<DWORD>(count), &written, nullptr) == 0 ||
            written == 0) {
            return;
        }
    }
}

void zvProcess::end(int exitCode) { endAtOnce(exitCode); }

void zvProcess::endAtOnce(int exitCode) {
    std::fflush(nullptr);
    ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(exitCode));
    std::abort();
}

// The standard library's text is in the code page.
std::string zvProcess::messageOf(const std::error_code& error) {
    wchar_t* text = nullptr;
    if (error.category() == std::system_category()) {
        ::FormatMessageW(
            FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
            nullptr, static_cast<DWORD>(error.value()), 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    }
    std::string message = text == nullptr ? error.message() : narrowed(text);
    ::LocalFree(text);
    return message.erase(message.find_last_not_of(".\r\n ") + 1);
}

unsigned long zvProcess::id() { return ::GetCurrentProcessId(); }

std::filesystem::path zvProcess::programFile() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(2 * path.size());
    }
}

zvProcess::Function zvProcess::findLoggerFunction(const char* name) {
    const HMODULE library = ::GetModuleHandleW(L"zvLogger.dll");
    return library == nullptr ? nullptr : reinterpret_cast<Function>(::GetProcAddress(library, name));
}

void zvProcess::setEnvironment(const char* name, const char* value) {
    ::_wputenv((widened(name) + L'=' + widened(value)).c_str());
}

// As the runtime takes a command line apart: blanks and quotes inside quotes, backslashes before quotes
// doubled.
static std::wstring quoted(const std::wstring& argument) {
    std::wstring text = L"\"";
    std::size_t backslashes = 0;
    for (const wchar_t character : argument) {
        if (character == L'"') {
            text.append(backslashes + 1, L'\\');
        }
        backslashes = character == L'\\' ? backslashes + 1 : 0;
        text += character;
    }
    return text.append(backslashes, L'\\') + L"\"";
}

bool zvProcess::run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                    std::chrono::milliseconds limit) {
    constexpr std::chrono::milliseconds pause(10);
    std::wstring command = quoted(program.wstring());
    for (const std::string& argument : arguments) {
        command += L" " + quoted(widened(argument));
    }
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (::CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                         nullptr, &startup, &process) == 0) {
        return false;
    }
    const auto end = std::chrono::steady_clock::now() + limit;
    while (::WaitForSingleObject(process.hProcess, 0) == WAIT_TIMEOUT) {
        if (std::chrono::steady_clock::now() >= end || notedSignal() != 0) {
            ::TerminateProcess(process.hProcess, 1);
            ::WaitForSingleObject(process.hProcess, INFINITE);
        } else {
            waitFor(pause);
        }
    }
    DWORD code = 1;
    ::GetExitCodeProcess(process.hProcess, &code);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return code == 0;
}

std::int64_t zvProcess::toSeconds(std::tm utc) { return ::_mkgmtime64(&utc); }

std::string zvProcess::hostName() {
    std::array<wchar_t, MAX_COMPUTERNAME_LENGTH + 1> name{};
    DWORD length = static_cast<DWORD>(name.size());
    return ::GetComputerNameW(name.data(), &length) != 0 ? narrowed(name.data()) : "";
}

std::FILE* zvProcess::reserveStandardOutput() {
    std::fflush(stdout);
    const int reserved = ::_dup(_fileno(stdout));
    std::FILE* const stream = reserved < 0 ? nullptr : ::_fdopen(reserved, "w");
    if (stream == nullptr || ::_dup2(_fileno(stderr), _fileno(stdout)) != 0) {
        return nullptr;
    }
    return stream;
}

std::size_t zvProcess::terminalColumns(std::FILE* stream) {
    CONSOLE_SCREEN_BUFFER_INFO screen{};
    const auto handle = reinterpret_cast<HANDLE>(::_get_osfhandle(_fileno(stream)));
    const bool isTerminal = ::GetConsoleScreenBufferInfo(handle, &screen) != 0;
    return isTerminal ? static_cast<std::size_t>(screen.srWindow.Right - screen.srWindow.Left + 1) : 0;
}

namespace {

std::atomic<int> noted{0};

BOOL WINAPI note(DWORD event) {
    const bool isKey = event == CTRL_C_EVENT || event == CTRL_BREAK_EVENT;
    const int signal = event == CTRL_C_EVENT ? SIGINT : SIGTERM;
    if (noted.exchange(signal) != 0) {
        // The exit code of the system's own handler may be 0.
        ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(128 + signal));
    }
    if (!isKey) {
        // The window is closed, or the system ends: the process has until this function returns.
        ::Sleep(INFINITE);
    }
    return TRUE;
}

}  // namespace

void zvProcess::noteSignals() { ::SetConsoleCtrlHandler(note, TRUE); }

zvProcess::SignalsUntouched::SignalsUntouched() = default;
zvProcess::SignalsUntouched::~SignalsUntouched() = default;

// The handler that is added last is called first, and Java's ends the process.
std::vector<std::string> zvProcess::signalOptions() { return {"-Xrs"}; }

int zvProcess::notedSignal() { return noted; }
