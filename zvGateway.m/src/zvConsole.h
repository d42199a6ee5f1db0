#ifndef ZV_CONSOLE_H
#define ZV_CONSOLE_H

#include <string>

#include "zvString.h"

/// What the program tells a person, on standard output, as it happens.
namespace zvConsole {

/// The text in the process's locale, its control characters, which a terminal would obey, replaced by "?".
std::string printable(const zvString& text);
/// The same for a path, with this system's delimiters.
std::string printablePath(const zvString& path);

/// Begins a step of the road.
void step(const char* name);
/// One thing that the present step has to tell.
void fact(const std::string& name, const std::string& value);

}  // namespace zvConsole

#endif
