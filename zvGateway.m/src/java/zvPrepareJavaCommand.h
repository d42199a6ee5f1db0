#ifndef ZV_PREPARE_JAVA_COMMAND_H
#define ZV_PREPARE_JAVA_COMMAND_H

#include <string>
#include <vector>

#include "zvFailure.h"

/// The subcommand that makes the archive of the classes with which events start Java.
class zvPrepareJavaCommand {
public:
    /// The file for the archive, in the process that makes it; empty in the one that is asked for it.
    std::string into;
    /// The machine's options, for the former.
    std::vector<std::string> javaOptions;

    zvExitCode run() const;

private:
    void makeArchive() const;
};

#endif
