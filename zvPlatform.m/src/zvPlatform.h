#ifndef ZV_PLATFORM_H
#define ZV_PLATFORM_H

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>

#include "zvTypes.h"

/// The platform seam: the system calls that the library needs, with one source file per system. No other file
/// of the library includes a system header or tests a system's macro.
///
/// Paths may use "\" or "/" as separator on every system. Narrow text is in the process's locale, or UTF-8
/// once adoptUtf8() was called.
namespace zvPlatform {

/// Handle of an open file, never 0; refusedHandle if it could not be opened.
using Handle = std::intptr_t;
constexpr Handle refusedHandle = -1;

/// The path with this system's separator, as its own interfaces and other libraries expect it.
std::string nativePath(const char* path);
/// The same for the standard library; empty for unconvertible text.
std::filesystem::path pathOf(const std::string& path);
/// The path as narrow text; empty if the locale cannot encode it.
std::string textOf(const std::filesystem::path& path);

/// Narrow text in the encoding in which other libraries take it, which on Windows is the code page. There a
/// path that the code page lacks, alone or in a list with semicolons, is replaced by its short form.
std::string textForLibraries(const std::string& text);

/// Why the system would take a path for another one than it names, or for none: empty if it does not. Windows
/// has names of devices in every folder, and drops what some names end in.
std::string nameFault(const std::string& path);

/// The system's error number of the last failed createDirectory, createFile or closeHandle.
unsigned long lastError();
/// The system's message for an error number.
std::string errorText(unsigned long error);

/// Creates one directory, not its parents.
bool createDirectory(const wchar16* path);
/// Whether lastError() says that there is something of this name already, also a link that leads nowhere.
bool wasNameTaken();
/// Creates a new, empty file; fails if it exists.
Handle createFile(const wchar16* path);
/// False for refusedHandle, which leaves lastError() unchanged.
bool closeHandle(Handle handle);
/// What an access test asks for.
enum AccessMode : int { existence = 0, writable = 2, readable = 4, readAndWrite = 6 };
/// False for an invalid `mode`.
bool isAccessible(const char* path, int mode);
/// The system's error number; 0 if the path is accessible.
unsigned long accessError(const char* path, int mode);
/// Deleter that closes a file.
struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;
/// Opens a file for reading as text; null for a directory and on failure.
File openForReading(const char* path);
/// Opens a regular file for reading, byte for byte; null for anything else and on failure.
File openBytes(const std::filesystem::path& path);
/// Opens a file for writing, byte for byte, and empties it; null, with errno set, on failure.
File openForWriting(const char* path);
/// Opens a directory, so that what is opened below it later is below this one, whatever its name leads to by
/// then; refusedHandle on failure.
Handle openDirectory(const std::filesystem::path& path);
/// Opens a regular file below an open directory for reading, byte for byte. `path` is relative, without ".."
/// and without links: one that is put there meanwhile leads to nothing outside the directory. Null for
/// anything else.
File openBelow(Handle directory, const std::filesystem::path& path);
/// Which file is at a path, and its size.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    std::uint64_t size = 0;
};
/// False if there is none. Asks for no times: a system that is asked for them makes the next write dearer.
bool identify(const std::filesystem::path& path, FileIdentity& found);
/// Deletes one file; refuses a directory.
bool removeFile(const char* path);
/// Runs "rmdir /s/q" with `arguments`, which are appended as they are: a blank, then paths separated by
/// blanks, optionally in double quotes. Where the system has no such command, a path that ends in "." or ".."
/// is refused.
/// @return true if every path was a directory and has been removed.
bool removeTree(const char* arguments);

/// Loads a dynamic library by path, or by name in the system's search order, for the life of the process. The
/// libraries that it needs may lie beside it, or, as Java's runtime does, in the folder above.
/// Null on failure.
void* loadLibrary(const char* name);
/// Null if `library` is null or has no such function.
void* findFunction(void* library, const char* name);
/// The path of the library file in which a function is, as it was loaded; empty if the system does not tell.
std::string libraryOf(void* function);

/// Writes a text, in the encoding of paths, to standard error: to a console its characters, to anything else
/// what other programs of the system read, UTF-8 where paths are wide.
void complain(const std::filesystem::path::string_type& text);

/// The value of an environment variable; empty if it is unset.
std::string environment(const char* name);
/// Sets an environment variable.
void setEnvironment(const char* name, const char* value);
/// For the start of main(): sets the user's locale, with C.UTF-8's characters where it is "C" or one that the
/// system lacks. Numbers keep the point: they are for programs, whatever the user's decimal point.
void adoptUserLocale();
/// For the start of main() of a program whose narrow texts are UTF-8 whatever the locale, which is the
/// user's.
void adoptUtf8();
/// The locale's decimal point.
const char* decimalPoint();

/// The process identifier.
unsigned long processId();

/// Whether the process is ending and its other threads are stopped, wherever they were: Windows does so
/// before it calls the destructors of a dynamic library. Always false elsewhere.
bool areOtherThreadsStopped();

/// Blocks the calling thread.
void sleep(unsigned long milliseconds);

/// Seconds since 1970.
zvInt64 currentTime();
/// Local time of `seconds`; false out of range: before 1970 or after 3000.
bool toLocalTime(zvInt64 seconds, std::tm& out);
/// Seconds of a local time, with daylight saving by the date; -1 out of range.
zvInt64 fromLocalTime(std::tm local);
/// For example "Sat May 21 11:12:22 2011", followed by a line feed.
std::string timeText(zvInt64 seconds);

}  // namespace zvPlatform

#endif
