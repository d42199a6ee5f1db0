#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>

#include "zvNativePath.h"
#include "zvProcess.h"

std::filesystem::path toNativePath(const zvString& path) {
    return std::wstring(path.data(), path.data() + path.size());
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
    ::_putenv((std::string(name) + "=" + value).c_str());
}

namespace {

// A link opens itself, which is refused, as are folders and pipes.
HANDLE openRegular(const std::filesystem::path& file, DWORD access, DWORD creation) {
    const HANDLE handle =
        ::CreateFileW(file.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                      creation, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    FILE_ATTRIBUTE_TAG_INFO info{};
    if (handle == INVALID_HANDLE_VALUE) {
        return handle;
    }
    if (::GetFileType(handle) == FILE_TYPE_DISK &&
        ::GetFileInformationByHandleEx(handle, FileAttributeTagInfo, &info, sizeof(info)) != 0 &&
        (info.FileAttributes & (FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY)) == 0) {
        return handle;
    }
    ::CloseHandle(handle);
    ::SetLastError(ERROR_INVALID_PARAMETER);
    return INVALID_HANDLE_VALUE;
}

// Locks a byte far beyond the end, where the lock keeps nobody from reading. False for one that another
// process holds.
bool lockByte(HANDLE handle, DWORD flags) {
    OVERLAPPED place{};
    place.OffsetHigh = MAXLONG;
    return ::LockFileEx(handle, flags | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0;
}

}  // namespace

zvProcess::Lock zvProcess::FileLock::take(const std::filesystem::path& file, std::error_code& error) {
    const auto lastError = [] {
        return std::error_code(static_cast<int>(::GetLastError()), std::system_category());
    };
    const HANDLE handle = openRegular(file, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS);
    if (handle == INVALID_HANDLE_VALUE) {
        error = lastError();
        return Lock::refused;
    }
    // Whoever asks by isLocked() holds it for a moment.
    constexpr int tries = 5;
    constexpr DWORD pause = 20;
    for (int i = 0; i < tries; ++i) {
        if (lockByte(handle, LOCKFILE_EXCLUSIVE_LOCK)) {
            m_handle = reinterpret_cast<std::intptr_t>(handle);
            return Lock::taken;
        }
        error = lastError();
        ::Sleep(pause);
    }
    ::CloseHandle(handle);
    return error.value() == ERROR_LOCK_VIOLATION ? Lock::heldByAnother : Lock::refused;
}

zvProcess::FileLock::~FileLock() {
    if (m_handle != -1) {
        ::CloseHandle(reinterpret_cast<HANDLE>(m_handle));
    }
}

// The system tells no more than whether a lock can be taken.
bool zvProcess::isLocked(const std::filesystem::path& file) {
    const HANDLE handle = openRegular(file, GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING);
    if (handle == INVALID_HANDLE_VALUE) {
        return false;
    }
    const bool isHeld = !lockByte(handle, 0) && ::GetLastError() == ERROR_LOCK_VIOLATION;
    ::CloseHandle(handle);
    return isHeld;
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
        command += L" " + quoted(std::filesystem::path(argument).wstring());
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
    std::array<char, MAX_COMPUTERNAME_LENGTH + 1> name{};
    DWORD length = static_cast<DWORD>(name.size());
    return ::GetComputerNameA(name.data(), &length) != 0 ? name.data() : "";
}

std::error_code zvProcess::appendToFile(const std::filesystem::path& file, const std::string& text,
                                        bool isDurable) {
    const auto lastError = [] {
        return std::error_code(static_cast<int>(::GetLastError()), std::system_category());
    };
    const HANDLE handle = openRegular(file, FILE_APPEND_DATA | FILE_READ_ATTRIBUTES, OPEN_ALWAYS);
    if (handle == INVALID_HANDLE_VALUE) {
        return lastError();
    }
    std::error_code error;
    DWORD written = 0;
    if (::WriteFile(handle, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) == 0 ||
        (isDurable && ::FlushFileBuffers(handle) == 0)) {
        error = lastError();
    }
    ::CloseHandle(handle);
    return error;
}

int zvProcess::openForReading(const std::filesystem::path& file, std::error_code& error) {
    const int descriptor = ::_wopen(file.c_str(), _O_RDONLY | _O_BINARY);
    error = {descriptor < 0 ? errno : 0, std::generic_category()};
    return descriptor;
}

int zvProcess::openRegularFile(const std::filesystem::path& file, std::error_code& error) {
    const HANDLE handle = openRegular(file, GENERIC_READ, OPEN_EXISTING);
    if (handle == INVALID_HANDLE_VALUE) {
        error = {static_cast<int>(::GetLastError()), std::system_category()};
        return -1;
    }
    error.clear();
    return ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_RDONLY | _O_BINARY);
}

bool zvProcess::isPrivate(int) { return true; }

bool zvProcess::makePrivateFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return std::filesystem::is_directory(folder, error);
}

std::error_code zvProcess::readToEnd(int descriptor, std::size_t limit, std::string& content) {
    constexpr std::size_t blockSize = 4096;
    std::array<char, blockSize> block{};
    std::error_code error;
    content.clear();
    for (int count = 1; count != 0 && !error;) {
        count = ::_read(descriptor, block.data(), static_cast<unsigned>(block.size()));
        if (count > 0) {
            content.append(block.data(), static_cast<std::size_t>(count));
        } else if (count < 0) {
            error = {errno, std::generic_category()};
        }
        if (content.size() > limit) {
            error = std::make_error_code(std::errc::file_too_large);
        }
    }
    close(descriptor);
    return error;
}

void zvProcess::close(int descriptor) { ::_close(descriptor); }

zvProcess::NewFileRights::NewFileRights(int) {}
zvProcess::NewFileRights::~NewFileRights() = default;

// The system has no such limit.
void zvProcess::reportFullFiles() {}

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
    const int signal = event == CTRL_C_EVENT ? SIGINT : SIGTERM;
    return noted.exchange(signal) == 0 ? TRUE : FALSE;
}

}  // namespace

void zvProcess::noteSignals() { ::SetConsoleCtrlHandler(note, TRUE); }

// The handler that was added last is called first.
zvProcess::SignalsUntouched::SignalsUntouched() = default;
zvProcess::SignalsUntouched::~SignalsUntouched() { noteSignals(); }

int zvProcess::notedSignal() { return noted; }
