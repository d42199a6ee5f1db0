#ifndef ZV_SHOW_COMMAND_H
#define ZV_SHOW_COMMAND_H

#include <string>

#include "zvFailure.h"

/// `zvgateway show`: prints a configuration file for people, or makes a page of it.
class zvShowCommand {
public:
    std::string file;
    /// The HTML page to write; empty to print.
    std::string page;

    /// Throws a zvProgramFailure when the file is not read to its end, and when the page cannot be written.
    zvExitCode run() const;
};

#endif
