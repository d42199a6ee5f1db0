#ifndef ZV_SHOW_COMMAND_H
#define ZV_SHOW_COMMAND_H

#include <functional>
#include <string>

#include "zvFailure.h"
#include "zvTestedCases.h"

/// `zvgateway show`: prints a configuration file for people, or makes a page of it.
class zvShowCommand {
public:
    std::string file;
    /// The HTML page to write; empty to print.
    std::string page;
    /// Runs the cases whose coverage the page shows, by the configuration that the library has; empty for
    /// none.
    std::function<zvTestedCases()> runCases;

    /// Throws a zvProgramFailure when the file is not read to its end, and when the page cannot be written.
    zvExitCode run() const;
};

#endif
