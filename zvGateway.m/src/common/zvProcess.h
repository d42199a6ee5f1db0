#ifndef ZV_PROCESS_H
#define ZV_PROCESS_H

#include <filesystem>
#include <system_error>

/// What the program needs of the operating system beside the library: one source file for each system, and no
/// other file of the program includes a system header.
namespace zvProcess {

/// The number by which the system knows this process.
unsigned long id();
/// This process's program file; empty when the system does not tell it.
std::filesystem::path programFile();
/// Sets a variable of this process's environment.
void setEnvironment(const char* name, const char* value);

enum class Lock { taken, heldByAnother, refused };
/// Takes an advisory lock on the file, which is created if need be. It is held until the process exits.
/// `error` is the reason of a refusal.
Lock lockFile(const std::filesystem::path& file, std::error_code& error);

}  // namespace zvProcess

#endif
