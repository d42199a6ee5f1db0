#include <fcntl.h>
#include <io.h>
#include <process.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdlib>
#include <ctime>
#include <cwctype>
#include <sstream>
#include <string>
#include <string_view>
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

// The encoding of narrow text for the system's own functions.
UINT codePage() { return zvTextCodec::isUtf8Adopted() ? CP_UTF8 : CP_ACP; }

std::wstring widened(const char* text) {
    std::wstring wide(static_cast<std::size_t>(::MultiByteToWideChar(codePage(), 0, text, -1, nullptr, 0)),
                      L'\0');
    ::MultiByteToWideChar(codePage(), 0, text, -1, wide.data(), static_cast<int>(wide.size()));
    wide.resize(wide.empty() ? 0 : wide.size() - 1);
    return wide;
}

// `isLossy` tells whether the code page lacks a character, which is replaced then.
std::string narrowed(const std::wstring& text, UINT page, bool& isLossy) {
    BOOL wasReplaced = FALSE;
    BOOL* const replaced = page == CP_UTF8 ? nullptr : &wasReplaced;  // as the system wants it
    const auto length = static_cast<int>(text.size());
    std::string narrow(static_cast<std::size_t>(
                           ::WideCharToMultiByte(page, 0, text.data(), length, nullptr, 0, nullptr, nullptr)),
                       '\0');
    ::WideCharToMultiByte(page, 0, text.data(), length, narrow.data(), static_cast<int>(narrow.size()),
                          nullptr, replaced);
    isLossy = wasReplaced != FALSE;
    return narrow;
}

std::string narrowed(const std::wstring& text) {
    bool ignored = false;
    return narrowed(text, codePage(), ignored);
}

// The path in the form that the system does not limit in length.
std::wstring unlimited(const std::wstring& path) {
    constexpr std::size_t longestFolder = MAX_PATH - 12;  // a file's name has to fit into it
    const auto beginsWith = [](const std::wstring& text, const wchar_t* prefix) {
        return text.rfind(prefix, 0) == 0;
    };
    if (path.size() < longestFolder || beginsWith(path, L"\\\\?\\")) {
        return path;
    }
    std::wstring whole(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(::GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
    return beginsWith(whole, L"\\\\") ? L"\\\\?\\UNC" + whole.substr(1) : L"\\\\?\\" + whole;
}

std::wstring unlimited(const char* path) { return unlimited(widened(path)); }

// While it lives, libraries are looked for in this folder, too.
class SearchedFolder {
public:
    explicit SearchedFolder(const std::filesystem::path& folder)
        : m_before(::GetDllDirectoryW(0, nullptr), L'\0') {
        m_before.resize(::GetDllDirectoryW(static_cast<DWORD>(m_before.size()), m_before.data()));
        ::SetDllDirectoryW(folder.c_str());
    }
    SearchedFolder(const SearchedFolder&) = delete;
    SearchedFolder& operator=(const SearchedFolder&) = delete;
    ~SearchedFolder() { ::SetDllDirectoryW(m_before.empty() ? nullptr : m_before.c_str()); }

private:
    std::wstring m_before;
};

bool isDevice(std::wstring name) {
    name.erase(std::min(name.find(L'.'), name.size()));
    name.erase(name.find_last_not_of(L' ') + 1);
    std::transform(name.begin(), name.end(), name.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towupper(c)); });
    constexpr std::wstring_view digits = L"123456789\u00B9\u00B2\u00B3";
    for (const wchar_t* const device : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"}) {
        if (name == device) {
            return true;
        }
    }
    const bool isPort = name.size() == 4 && (name.rfind(L"COM", 0) == 0 || name.rfind(L"LPT", 0) == 0);
    return isPort && digits.find(name[3]) != std::wstring_view::npos;
}

const char* faultOfName(const std::wstring& name) {
    constexpr wchar_t firstPrintable = L' ';
    if (name == L"." || name == L".." || name.empty()) {
        return "";
    }
    if (name.find_first_of(L"<>:\"|?*") != std::wstring::npos ||
        std::any_of(name.begin(), name.end(), [](wchar_t c) { return c < firstPrintable; })) {
        return "has a character that no name has on Windows";
    }
    if (name.back() == L'.' || name.back() == L' ') {
        return "ends in a dot or a blank, which Windows drops";
    }
    return isDevice(name) ? "is the name of a device on Windows" : "";
}

std::string faultOfPath(const std::wstring& path) {
    if (path.rfind(LR"(\\?\)", 0) == 0 || path.rfind(LR"(\\.\)", 0) == 0) {
        return {};  // which says that the rest is taken as it is
    }
    for (const std::filesystem::path& name : std::filesystem::path(path).relative_path()) {
        const std::string fault = faultOfName(name.native());
        if (!fault.empty()) {
            return "\"" + narrowed(name.native()) + "\" " + fault;
        }
    }
    return {};
}

// Whether the path names what it says; a failure otherwise.
bool isNameable(const wchar_t* path) {
    const bool isFree = faultOfPath(path).empty();
    lastFailure = isFree ? lastFailure : ERROR_INVALID_NAME;
    return isFree;
}

bool isRegularFile(HANDLE handle) {
    BY_HANDLE_FILE_INFORMATION facts = {};
    constexpr DWORD others = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    return ::GetFileType(handle) == FILE_TYPE_DISK && ::GetFileInformationByHandle(handle, &facts) != 0 &&
           (facts.dwFileAttributes & others) == 0;
}

// Null, with errno set, on failure.
File open(const std::wstring& path, const wchar_t* mode) {
    if (!isNameable(path.c_str())) {
        errno = EINVAL;
        return nullptr;
    }
    return File(::_wfopen(unlimited(path).c_str(), mode));
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

std::string textForLibraries(const std::string& text) {
    std::string all;
    std::wistringstream parts(widened(text.c_str()));
    for (std::wstring part; std::getline(parts, part, L';');) {
        bool isLossy = false;
        std::string narrow = narrowed(part, CP_ACP, isLossy);
        std::wstring brief(isLossy ? ::GetShortPathNameW(part.c_str(), nullptr, 0) : 0, L'\0');
        if (!brief.empty()) {
            brief.resize(::GetShortPathNameW(part.c_str(), brief.data(), static_cast<DWORD>(brief.size())));
            narrow = narrowed(brief, CP_ACP, isLossy);
        }
        all.append(all.empty() ? "" : ";").append(narrow);
    }
    return all;
}

std::string nameFault(const std::string& path) { return faultOfPath(widened(path.c_str())); }

unsigned long lastError() { return lastFailure; }

// The standard library's text is in the code page.
std::string errorText(unsigned long error) {
    wchar_t* text = nullptr;
    const DWORD length = ::FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        error, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    std::wstring message(text == nullptr ? L"" : text, length);
    ::LocalFree(text);
    message.erase(message.find_last_not_of(L".\r\n ") + 1);
    return message.empty() ? "error " + std::to_string(error) : narrowed(message);
}

bool createDirectory(const wchar16* path) {
    return isNameable(wide(path)) &&
           succeeded(::CreateDirectoryW(unlimited(wide(path)).c_str(), nullptr) != 0);
}

bool wasNameTaken() { return lastFailure == ERROR_ALREADY_EXISTS; }

Handle createFile(const wchar16* path) {
    if (!isNameable(wide(path))) {
        return refusedHandle;
    }
    const HANDLE handle = ::CreateFileW(unlimited(wide(path)).c_str(), FILE_ALL_ACCESS, shared, nullptr,
                                        CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
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
    return ::_waccess(unlimited(path).c_str(), mode) == 0 ? 0 : _doserrno;
}

File openForReading(const char* path) { return open(widened(path), L"r"); }

File openBytes(const std::filesystem::path& path) { return open(path.native(), L"rb"); }

File openForWriting(const char* path) { return open(widened(path), L"wb"); }

Handle openDirectory(const std::filesystem::path& path) {
    return handleOf(::CreateFileW(unlimited(path.native()).c_str(), FILE_READ_ATTRIBUTES, shared, nullptr,
                                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
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

bool removeFile(const char* path) { return ::_wremove(unlimited(path).c_str()) == 0; }

bool removeTree(const char* arguments) {
    return ::_wsystem((L"rmdir /s/q" + widened(arguments)).c_str()) == 0;
}

void* loadLibrary(const char* name) {
    const std::filesystem::path path = widened(name);
    HMODULE library = ::LoadLibraryW(path.c_str());
    if (library == nullptr && path.has_parent_path()) {
        const SearchedFolder above(path.parent_path().parent_path());
        library = ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    }
    return reinterpret_cast<void*>(library);
}

void* findFunction(void* library, const char* name) {
    return library == nullptr
               ? nullptr
               : reinterpret_cast<void*>(::GetProcAddress(reinterpret_cast<HMODULE>(library), name));
}

bool identify(const std::filesystem::path& path, FileIdentity& found) {
    const HANDLE file = ::CreateFileW(unlimited(path.native()).c_str(), 0,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
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
    constexpr std::size_t longestPath = 32768;
    std::wstring path(longestPath, L'\0');
    const bool isFound = ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                                  GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                                              reinterpret_cast<const wchar_t*>(function), &library) != 0;
    path.resize(isFound ? ::GetModuleFileNameW(library, path.data(), longestPath) : 0);
    return narrowed(path);
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
    const wchar_t* const value = ::_wgetenv(widened(name).c_str());
    return value == nullptr ? "" : narrowed(value);
}

void setEnvironment(const char* name, const char* value) {
    ::_wputenv((widened(name) + L'=' + widened(value)).c_str());
}

void adoptUserLocale() {
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
}

void adoptUtf8() {
    adoptUserLocale();
    zvTextCodec::adoptUtf8();
}

const char* decimalPoint() { return std::localeconv()->decimal_point; }

unsigned long processId() { return ::GetCurrentProcessId(); }

bool areOtherThreadsStopped() {
    using Ask = BOOLEAN(WINAPI*)();
    const auto ask =
        reinterpret_cast<Ask>(findFunction(::GetModuleHandleW(L"ntdll.dll"), "RtlDllShutdownInProgress"));
    return ask != nullptr && ask() != FALSE;
}

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
