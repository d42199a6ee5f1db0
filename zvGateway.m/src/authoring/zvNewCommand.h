#ifndef ZV_NEW_COMMAND_H
#define ZV_NEW_COMMAND_H

#include <string>

#include "zvFailure.h"

/// `zvgateway new`: a gateway home to start from.
class zvNewCommand {
public:
    std::string folder;

    /// Throws the zvProgramFailure of a folder that is not empty, or cannot be made.
    zvExitCode run() const;
};

#endif
