#ifndef ZV_PROCESS_H
#define ZV_PROCESS_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

/// What the program needs of the operating system beside the library: one source file for each system and one
/// for what is the same on all, and no other file of the program includes a system header.
namespace zvProcess {

/// For the start of main(): adopts the encoding of the program's narrow texts, paths included, and returns
/// its arguments in it, without its own name. It is the user's locale's, and on Windows UTF-8, whatever the
/// code page.
std::vector<std::string> takeArguments(int argc, char** argv);
/// Writes text for people to a standard stream as it can be read there: on a Windows console as wide text.
void write(std::FILE* stream, const std::string& text);

/// Ends the process; for the end of main(). Exit handlers and destructors run, but on Windows, where it is
/// endAtOnce(): exit() there stops the threads of a Java machine wherever they are, and then tells every
/// library, which may wait for what such a thread holds.
[[noreturn]] void end(int exitCode);
/// Ends the process with what it wrote to its streams, and does nothing else.
[[noreturn]] void endAtOnce(int exitCode);

/// The system's words for an error.
std::string messageOf(const std::error_code& error);

/// The number by which the system knows this process.
unsigned long id();
/// This machine's name in its network; empty when the system does not tell it.
std::string hostName();
/// This process's program file; empty when the system does not tell it.
std::filesystem::path programFile();
/// A function of the logging library that this process has loaded; null if the library has none of this name.
using Function = void (*)();
Function findLoggerFunction(const char* name);
/// Sets a variable of this process's environment.
void setEnvironment(const char* name, const char* value);
/// Blocks the calling thread, until a request to end the process is noted at the longest. Every wait of the
/// program goes through here.
void waitFor(std::chrono::milliseconds time);

enum class Lock { taken, heldByAnother, refused };
/// An advisory lock on a file, held as long as the object and the process live.
class FileLock {
public:
    FileLock() = default;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    ~FileLock();

    /// Takes the lock; to be called once. The file is created if need be; a link, and what is no regular
    /// file, is refused. `error` is the reason of a refusal.
    Lock take(const std::filesystem::path& file, std::error_code& error);
    /// Before the end of the object's life, so that a file that is removed is gone on every system.
    void release();

private:
    std::intptr_t m_handle = -1;  // of the open file, to which the lock belongs
};
/// Whether a process holds the lock on the file, this one included.
bool isLocked(const std::filesystem::path& file);

/// Runs a program without standard streams and waits for it; after `limit`, or when a request to end this
/// process is noted, it is killed. Whether it ended by itself with exit code 0.
bool run(const std::filesystem::path& program, const std::vector<std::string>& arguments,
         std::chrono::milliseconds limit);

/// Seconds since 1970 of an instant in UTC.
std::int64_t toSeconds(std::tm utc);

/// Appends to the file; if `isDurable`, returns once it is on the disk. A link, and what is no regular file,
/// is refused. An empty error for success.
std::error_code appendToFile(const std::filesystem::path& file, const std::string& text, bool isDurable);

/// Returns once what was appended to the file is on the disk. An empty error for success.
std::error_code flushToDisk(const std::filesystem::path& file);

/// Creates a file for writing, byte for byte; null, with errno set, if there is one of this name or it cannot
/// be created.
std::FILE* createFile(const std::filesystem::path& file);
/// Gives a file the name of another one, which it replaces. On Windows one that another program has open is
/// waited for, for a moment.
void replaceFile(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& error);
/// Copies a file, and replaces another one by the copy.
void copyFile(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& error);
/// What is at a path itself, and not what a link leads to.
std::filesystem::file_status statusOf(const std::filesystem::path& path, std::error_code& error);
/// Removes a file or a folder with all that is in it, and links without what they lead to.
void removeTree(const std::filesystem::path& path, std::error_code& error);

/// A descriptor from which the file is read; -1 and the reason in `error` if it cannot be opened.
int openForReading(const std::filesystem::path& file, std::error_code& error);
/// The same for a regular file alone: a link is refused, and a pipe, which might keep the process waiting.
int openRegularFile(const std::filesystem::path& file, std::error_code& error);
/// Whether this process's user owns the open file, and nobody else but the superuser has any right to it.
/// Always true on Windows, where access lists say so.
bool isPrivate(int descriptor);
/// Creates the folder, and those above it, for this process's user alone. False if it cannot be made, is a
/// link, or another user owns it or has a right to it; access lists say so on Windows.
bool makePrivateFolder(const std::filesystem::path& folder);
/// Reads at most `size` bytes into the block. The number of them, 0 at the end; -1, with errno set, on
/// failure.
long readSome(int descriptor, char* block, std::size_t size);
/// Sets `content` to all that can be read from the descriptor, which is closed. More than `limit` bytes are
/// an error.
std::error_code readToEnd(int descriptor, std::size_t limit, std::string& content);
void close(int descriptor);

/// While it lives, what this process creates lacks the rights in `mask`, as in a umask; -1 changes nothing.
/// Nothing on Windows, where a folder's access list says who has which.
class NewFileRights {
public:
    explicit NewFileRights(int mask);
    NewFileRights(const NewFileRights&) = delete;
    NewFileRights& operator=(const NewFileRights&) = delete;
    ~NewFileRights();

private:
    int m_before = -1;
};

/// From now on a file that would become larger than the process may write is an error like a full disk, and
/// does not end the process.
void reportFullFiles();

/// Keeps standard output for the caller alone: what the process writes to it otherwise, libraries included,
/// goes to standard error from now on. Null, with nothing changed, if that fails.
std::FILE* reserveStandardOutput();

/// The columns of the terminal that the stream goes to; 0 if it goes to none.
std::size_t terminalColumns(std::FILE* stream);

/// From now on a request to end the process (Ctrl-C, SIGTERM, SIGHUP) is noted: work ends where it can be
/// ended cleanly. A second one ends the process at once.
void noteSignals();
/// While it lives, a library that is started and sets handlers of its own leaves those of noteSignals()
/// alone.
class SignalsUntouched {
public:
    SignalsUntouched();
    SignalsUntouched(const SignalsUntouched&) = delete;
    SignalsUntouched& operator=(const SignalsUntouched&) = delete;
    ~SignalsUntouched();
};
/// Options with which a Java machine leaves them alone, where it installs its own while others are ignored.
std::vector<std::string> signalOptions();
/// The number of the signal that was noted; 0 for none.
int notedSignal();

}  // namespace zvProcess

#endif
