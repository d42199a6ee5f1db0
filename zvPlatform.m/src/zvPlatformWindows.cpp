#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <windows.h>

#include <array>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <string>
#include <system_error>
#include <vector>

#include "zvPlatform.h"
#include "zvPlatformCommon.h"
#include "zvTextCodec.h"

namespace zvPlatform {
namespace {

static_assert(sizeof(wchar_t) == sizeof(wchar16), "wide characters are UTF-16 code units here");

// Not GetLastError() itself, which a log line written in between would overwrite.
thread_local unsigned long lastFailure = 0;

bool succeeded(bool success) {
    if (!success) {
        lastFailure = ::GetLastError();
    }
    return success;
}

const wchar_t* wide(const wchar16* text) { return reinterpret_cast<const wchar_t*>(text); }

constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE;

Handle handleOf(HANDLE handle) {
    return handle == INVALID_HANDLE_VALUE ? refusedHandle : reinterpret_cast<Handle>(handle);
}

// Where what is open really is, all links followed; empty on failure.
std::wstring placeOf(HANDLE handle) {
    std::wstring place(::GetFinalPathNameByHandleW(handle, nullptr, 0, FILE_NAME_NORMALIZED), L'\0');
    const DWORD length = ::GetFinalPathNameByHandleW(handle, place.data(), static_cast<DWORD>(place.size()),
                                                     FILE_NAME_NORMALIZED);
    place.resize(length < place.size() ? length : 0);
    return place;
}

bool isRegularFile(HANDLE handle) {
    BY_HANDLE_FILE_INFORMATION facts = {};
    constexpr DWORD others = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return ::GetFileType(handle) == FILE_TYPE_DISK && ::GetFileInformationByHandle(handle, &facts) != 0 &&
           (facts.dwFileAttributes & others) == 0;
}

}  // namespace

std::string nativePath(const char* path) { return path; }

// The standard library's own conversion assumes UTF-8 and throws for any other bytes.
std::filesystem::path pathOf(const std::string& path) {
    const std::size_t length = zvTextCodec::wideLength(path.c_str());
    if (length == zvTextCodec::unconvertible) {
        return {};
    }
    std::vector<wchar16> units(length);
    zvTextCodec::widen(path.c_str(), units.data(), length);
    return std::wstring(units.begin(), units.end());
}

std::string textOf(const std::filesystem::path& path) {
    const std::vector<wchar16> units(path.native().begin(), path.native().end());
    const std::size_t bytes = zvTextCodec::narrowLength(units.data(), units.size());
    if (bytes == zvTextCodec::unconvertible) {
        return {};
    }
    std::string narrow(bytes, '\0');
    zvTextCodec::narrow(units.data(), units.size(), narrow.data());
    return narrow;
}

unsigned long lastError() { return lastFailure; }

std::string errorText(unsigned long error) { return std::system_category().message(static_cast<int>(error)); }

bool createDirectory(const wchar16* path) { return succeeded(::CreateDirectoryW(wide(path), nullptr) != 0); }

bool wasNameTaken() { return lastFailure == ERROR_ALREADY_EXISTS; }

Handle createFile(const wchar16* path) {
    const HANDLE handle = ::CreateFileW(wide(path), FILE_ALL_ACCESS, shared, nullptr, CREATE_NEW,
                                        FILE_ATTRIBUTE_NORMAL, nullptr);
    succeeded(handle != INVALID_HANDLE_VALUE);
    return handleOf(handle);
}

bool closeHandle(Handle handle) {
    return handle != refusedHandle && succeeded(::CloseHandle(reinterpret_cast<HANDLE>(handle)) != 0);
}

bool isAccessible(const char* path, int mode) { return accessError(path, mode) == 0; }

unsigned long accessError(const char* path, int mode) {
    if (!isAccessMode(mode)) {
        return ERROR_INVALID_PARAMETER;
    }
    return ::_access(path, mode) == 0 ? 0 : _doserrno;
}

File openForReading(const char* path) { return File(std::fopen(path, "r")); }

Handle openDirectory(const std::filesystem::path& path) {
    return handleOf(::CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, shared, nullptr, OPEN_EXISTING,
                                  FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

// The system follows links on the way; where it came to is looked at before anything is read.
File openBelow(Handle directory, const std::filesystem::path& path) {
    const std::wstring folder = placeOf(reinterpret_cast<HANDLE>(directory)) + L'\\';
    const std::wstring wanted = folder + std::filesystem::path(path).make_preferred().native();
    const HANDLE handle = ::CreateFileW(wanted.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING,
                                        FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    const bool isBelow =
        path.is_relative() && isRegularFile(handle) && placeOf(handle).compare(0, folder.size(), folder) == 0;
    const int descriptor =
        isBelow ? ::_open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_RDONLY | _O_BINARY) : -1;
    if (descriptor < 0) {
        ::CloseHandle(handle);
        return nullptr;
    }
    return File(::_fdopen(descriptor, "rb"));
}

// The one way that there is here.
File openStepByStep(Handle directory, const std::filesystem::path& path) {
    return openBelow(directory, path);
}

bool removeFile(const char* path) { return std::remove(path) == 0; }

bool removeTree(const char* arguments) {
    return std::system((std::string("rmdir /s/q") + arguments).c_str()) == 0;
}

void* loadLibrary(const char* name) { return reinterpret_cast<void*>(::LoadLibraryA(name)); }

void* findFunction(void* library, const char* name) {
    return library == nullptr
               ? nullptr
               : reinterpret_cast<void*>(::GetProcAddress(reinterpret_cast<HMODULE>(library), name));
}

bool identify(const std::filesystem::path& path, FileIdentity& found) {
    const HANDLE file = ::CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return false;
    }
    BY_HANDLE_FILE_INFORMATION information{};
    const bool isKnown = ::GetFileInformationByHandle(file, &information) != 0;
    ::CloseHandle(file);
    constexpr unsigned bitsOfHalf = 32;
    const auto joined = [](DWORD high, DWORD low) { return (std::uint64_t{high} << bitsOfHalf) | low; };
    found.device = information.dwVolumeSerialNumber;
    found.number = joined(information.nFileIndexHigh, information.nFileIndexLow);
    found.size = joined(information.nFileSizeHigh, information.nFileSizeLow);
    return isKnown;
}

std::string libraryOf(void* function) {
    HMODULE library = nullptr;
    std::array<char, MAX_PATH> path{};
    const bool isFound =
        ::GetModuleHandleExA(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            reinterpret_cast<const char*>(function), &library) != 0 &&
        ::GetModuleFileNameA(library, path.data(), static_cast<DWORD>(path.size())) < path.size();
    return isFound ? path.data() : "";
}

void complain(const std::wstring& text) {
    const HANDLE console = ::GetStdHandle(STD_ERROR_HANDLE);
    DWORD mode = 0;
    if (::GetConsoleMode(console, &mode) != 0) {
        ::WriteConsoleW(console, text.c_str(), static_cast<DWORD>(text.size()), nullptr, nullptr);
        return;
    }
    std::fputs(std::filesystem::path(text).u8string().c_str(), stderr);
}

std::string environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

void setEnvironment(const char* name, const char* value) {
    ::_putenv((std::string(name) + "=" + value).c_str());
}

void adoptUserLocale() {
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
}

const char* decimalPoint() { return std::localeconv()->decimal_point; }

unsigned long processId() { return ::GetCurrentProcessId(); }

void sleep(unsigned long milliseconds) { ::Sleep(milliseconds); }

zvInt64 currentTime() { return ::_time64(nullptr); }

bool toLocalTime(zvInt64 seconds, std::tm& out) {
    const __time64_t time = seconds;
    return isTellable(seconds) && ::_localtime64_s(&out, &time) == 0;
}

zvInt64 fromLocalTime(std::tm local) {
    local.tm_isdst = -1;
    const zvInt64 seconds = ::_mktime64(&local);
    return isTellable(seconds) ? seconds : -1;
}

std::string timeText(zvInt64 seconds) {
    const __time64_t time = seconds;
    const char* const text = ::_ctime64(&time);
    return text != nullptr ? text : "";
}

}  // namespace zvPlatform
