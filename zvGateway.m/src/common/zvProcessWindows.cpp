#include <windows.h>

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

void zvProcess::setEnvironment(const char* name, const char* value) {
    ::_putenv((std::string(name) + "=" + value).c_str());
}

zvProcess::Lock zvProcess::lockFile(const std::filesystem::path& file, std::error_code& error) {
    const auto lastError = [] {
        return std::error_code(static_cast<int>(::GetLastError()), std::system_category());
    };
    // The handle stays open, and with it the lock.
    const HANDLE handle = ::CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                        OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        error = lastError();
        return Lock::refused;
    }
    // A byte far beyond the end, where the lock keeps nobody from reading.
    OVERLAPPED place{};
    place.OffsetHigh = MAXLONG;
    if (::LockFileEx(handle, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0) {
        return Lock::taken;
    }
    error = lastError();
    ::CloseHandle(handle);
    return error.value() == ERROR_LOCK_VIOLATION ? Lock::heldByAnother : Lock::refused;
}
