#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <cerrno>
#include <string>
#include <vector>

#include "zvNativePath.h"
#include "zvProcess.h"

std::filesystem::path toNativePath(const zvString& path) {
    return std::wstring(path.data(), path.data() + path.size());
}

namespace {

std::error_code lastError() { return {static_cast<int>(::GetLastError()), std::system_category()}; }

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

zvProcess::FileLock::~FileLock() { release(); }

void zvProcess::FileLock::release() {
    if (m_handle != -1) {
        ::CloseHandle(reinterpret_cast<HANDLE>(m_handle));
        m_handle = -1;
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

std::error_code zvProcess::appendToFile(const std::filesystem::path& file, const std::string& text,
                                        bool isDurable) {
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

std::FILE* zvProcess::createFile(const std::filesystem::path& file) {
    const int descriptor =
        ::_wopen(file.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY, _S_IREAD | _S_IWRITE);
    return descriptor < 0 ? nullptr : ::_fdopen(descriptor, "wb");
}

namespace {

// Whether the last action failed because somebody, as a scanner for viruses, has the file open for a moment.
bool isInUse() {
    const DWORD error = ::GetLastError();
    return error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED || error == ERROR_LOCK_VIOLATION;
}

// Tries the action, which returns whether it succeeded, until the file is not in use or for a second.
template <typename Action>
std::error_code attempt(Action action) {
    constexpr int tries = 20;
    constexpr DWORD pause = 50;
    for (int i = 1; !action(); ++i) {
        if (i == tries || !isInUse()) {
            return lastError();
        }
        ::Sleep(pause);
    }
    return {};
}

// The folder's entries but itself and the one above.
std::vector<std::filesystem::path> entriesOf(const std::filesystem::path& folder, std::error_code& error) {
    std::vector<std::filesystem::path> entries;
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW((folder / "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) {
        error = lastError();
        return entries;
    }
    do {
        const std::filesystem::path name = found.cFileName;
        if (name != "." && name != "..") {
            entries.push_back(folder / name);
        }
    } while (::FindNextFileW(search, &found) != 0);
    ::FindClose(search);
    return entries;
}

}  // namespace

void zvProcess::replaceFile(const std::filesystem::path& from, const std::filesystem::path& to,
                            std::error_code& error) {
    error = attempt([&] { return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0; });
}

// The standard library's function fails where the other file exists.
void zvProcess::copyFile(const std::filesystem::path& from, const std::filesystem::path& to,
                         std::error_code& error) {
    error = attempt([&] { return ::CopyFileW(from.c_str(), to.c_str(), FALSE) != 0; });
}

// The standard library does not know links and junctions.
std::filesystem::file_status zvProcess::statusOf(const std::filesystem::path& path, std::error_code& error) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    const bool isLink =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    error.clear();
    return isLink ? std::filesystem::file_status(std::filesystem::file_type::symlink)
                  : std::filesystem::status(path, error);
}

// The standard library's function follows links and junctions.
void zvProcess::removeTree(const std::filesystem::path& path, std::error_code& error) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    error.clear();
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        const DWORD reason = ::GetLastError();
        error = reason == ERROR_FILE_NOT_FOUND || reason == ERROR_PATH_NOT_FOUND ? error : lastError();
        return;
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        ::SetFileAttributesW(path.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        error = attempt([&] { return ::DeleteFileW(path.c_str()) != 0; });
        return;
    }
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        for (const std::filesystem::path& entry : entriesOf(path, error)) {
            if (!error) {
                removeTree(entry, error);
            }
        }
    }
    if (!error) {
        error = attempt([&] { return ::RemoveDirectoryW(path.c_str()) != 0; });
    }
}

int zvProcess::openForReading(const std::filesystem::path& file, std::error_code& error) {
    const int descriptor = ::_wopen(file.c_str(), _O_RDONLY | _O_BINARY);
    error = {descriptor < 0 ? errno : 0, std::generic_category()};
    return descriptor;
}

int zvProcess::openRegularFile(const std::filesystem::path& file, std::error_code& error) {
    const HANDLE handle = openRegular(file, GENERIC_READ, OPEN_EXISTING);
    if (handle == INVALID_HANDLE_VALUE) {
        error = lastError();
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

long zvProcess::readSome(int descriptor, char* block, std::size_t size) {
    return ::_read(descriptor, block, static_cast<unsigned>(size));
}

void zvProcess::close(int descriptor) { ::_close(descriptor); }

zvProcess::NewFileRights::NewFileRights(int) {}
zvProcess::NewFileRights::~NewFileRights() = default;

// The system has no such limit.
void zvProcess::reportFullFiles() {}
