#ifndef ZV_CHECK_COMMAND_H
#define ZV_CHECK_COMMAND_H

#include <string>

#include "zvFailure.h"

/// `zvgateway check`: prints everything that is wrong with a configuration file, a line each.
class zvCheckCommand {
public:
    std::string file;
    /// Warnings fail as errors do.
    bool strict = false;

    zvExitCode run() const;
};

#endif
