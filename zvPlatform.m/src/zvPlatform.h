#ifndef ZV_PLATFORM_H
#define ZV_PLATFORM_H

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>

#include "zvTypes.h"

/// The operating system, as far as the library needs it: one function for each call, one source file for each
/// system. Nothing else in the project includes a system header or tests a system's macro.
///
/// Paths may separate folders with "\" or "/" on every system. Narrow texts are in the process's locale.
namespace zvPlatform {

/// Of an opened file; never 0 for one. A refused file is refusedHandle.
using Handle = std::intptr_t;
constexpr Handle refusedHandle = -1;

/// The path as this system's own interfaces, and other libraries on it, expect it.
std::string nativePath(const char* path);
/// The same for the standard library's own functions; empty for a text that cannot be converted.
std::filesystem::path pathOf(const std::string& path);
/// The path as narrow text; empty for a path that has none in this locale.
std::string textOf(const std::filesystem::path& path);

/// The system's number for the last refusal of createDirectory, createFile or closeHandle.
unsigned long lastError();
/// The system's text for such a number.
std::string errorText(unsigned long error);

/// Creates one directory, not its parents.
bool createDirectory(const wchar16* path);
/// Creates a new, empty file; refuses an existing one.
Handle createFile(const wchar16* path);
/// False for refusedHandle, lastError() then still being createFile's.
bool closeHandle(Handle handle);
/// What an access test asks for.
enum AccessMode : int { existence = 0, writable = 2, readable = 4, readAndWrite = 6 };
/// False for a `mode` that is none of AccessMode's.
bool isAccessible(const char* path, int mode);
/// The same, with the system's number for the reason; 0 when the path is accessible.
unsigned long accessError(const char* path, int mode);
/// Closes the file that it owns.
struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;
/// Opens a file for reading as text; null for a directory and for what cannot be opened.
File openForReading(const char* path);
/// Removes one file; refuses a directory.
bool removeFile(const char* path);
/// Carries out "rmdir /s/q" with `arguments`, which follow the switches at once: a blank, then paths that are
/// separated by blanks or stand in double quotes. @return true when every path was a directory and is gone.
/// Where this system has no such command, a path that ends in "." or ".." is refused.
bool removeTree(const char* arguments);

/// Loads a dynamic library by path, or by name in the system's search order; it stays loaded. Null if it
/// fails.
void* loadLibrary(const char* name);
/// Null when `library` has no function of that name.
void* findFunction(void* library, const char* name);

/// A variable of this process's environment; empty when it is not set.
std::string environment(const char* name);
/// Sets a variable of this process's environment.
void setEnvironment(const char* name, const char* value);
/// For a program's start: the user's locale, with UTF-8 in the place of a locale that has another encoding.
void adoptUserLocale();
/// What the locale has in the place of a number's ".".
const char* decimalPoint();

/// The number by which the system knows this process.
unsigned long processId();

/// Puts the calling thread to sleep.
void sleep(unsigned long milliseconds);

/// Seconds since 1970.
zvInt64 currentTime();
/// Local time of `seconds`; false for what cannot be told: before 1970, after 3000.
bool toLocalTime(zvInt64 seconds, std::tm& out);
/// Seconds of a local time, daylight saving worked out from the date; -1 for an instant before 1970 or after
/// 3000.
zvInt64 fromLocalTime(std::tm local);
/// As in "Sat May 21 11:12:22 2011", with a line feed behind it.
std::string timeText(zvInt64 seconds);

}  // namespace zvPlatform

#endif
