#ifndef ZV_CONSOLE_H
#define ZV_CONSOLE_H

#include <cstddef>
#include <string>
#include <vector>

#include "zvString.h"

/// What the program tells a person as it happens: on standard output, unless that is for another program.
namespace zvConsole {

/// Leaves standard output to print() alone: from now on everything else, also what libraries print, goes to
/// standard error. Throws the zvProgramFailure of a system that cannot.
void leaveStandardOutput();
bool hasLeftStandardOutput();
/// Writes an answer to standard output as it is, in pieces or whole.
void write(const std::string& text);
/// Says on standard error why the program fails, or what it cannot do, with its secrets masked.
void complain(const std::string& message);
/// Prints the answer of a run whose standard output was left to it.
void print(const std::string& answer);
/// Whether print() was called.
bool hasAnswered();
/// Whether all that was printed has reached standard output. To be asked once, at the end.
bool flush();

/// The text in the process's locale, its control characters, which a terminal would obey, replaced by "?", as
/// are ends of lines and what turns the direction of writing.
std::string printable(const zvString& text);
/// The same for a text that is UTF-8, whatever the locale.
std::string printableUtf8(const std::string& text);
/// The same for a path, with this system's delimiters.
std::string printablePath(const zvString& path);

/// Begins a step of the road; its heading is printed with the first fact.
void step(const char* name);
/// One thing that the present step has to tell.
void fact(const std::string& name, const std::string& value);

/// From now on step() and fact() print nothing: of many events each is told in one line.
void muteSteps();
/// The same, and nothing but failures is told.
void setQuiet();
/// A line of standard error, beside the answer that another program may read; nothing when quiet.
void note(const std::string& text);
/// What became of an event, as a line of standard error; when quiet, only if it `isFailure`.
void outcome(const std::string& text, bool isFailure);

/// Leaves out all progress from now on.
void leaveOutProgress();
bool showsProgress();
/// The columns of the line that rewrite() fills; 0 where no line can be rewritten, which is no terminal.
std::size_t rewritableColumns();
/// Shows the printable line where the last one stands that was shown so. Whatever is printed otherwise takes
/// its place, and so does an empty one.
void rewrite(const std::string& line);

/// The text, its beginning replaced by "..." if it would take more columns.
zvString shortened(const zvString& text, std::size_t columns);
/// The text with blanks after it, up to this number of bytes.
std::string padded(std::string text, std::size_t length);
/// A size as in "4.2 MB", and what moved per second as in "12.5 MB/s".
std::string size(double bytes);
std::string rate(double bytes, double milliseconds);
/// A number of things, as in "1 file" and "2 files".
std::string counted(std::ptrdiff_t count, const char* noun);
/// The same with a plural of its own.
std::string counted(std::ptrdiff_t count, const char* singular, const char* plural);
/// The texts in their order, with the separator between them.
std::string joined(const std::vector<std::string>& texts, const char* separator);

}  // namespace zvConsole

#endif
