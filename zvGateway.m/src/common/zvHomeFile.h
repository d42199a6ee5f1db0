#ifndef ZV_HOME_FILE_H
#define ZV_HOME_FILE_H

#include <string>
#include <vector>

#include "zvString.h"

/// A small file of a gateway home.
struct zvHomeFile {
    /// Reads the file. `error` is why it cannot be read, or is none; otherwise empty.
    static std::string read(const zvString& path, std::string& error);
    /// The content of a file of the home's folder "config", which is read again when the file has changed.
    /// Empty without a home, and for a file that cannot be read.
    static std::string readConfiguration(const char* name);
    /// Its lines, without their ends, which may be those of Windows.
    static std::vector<std::string> lines(const std::string& content);
};

#endif
