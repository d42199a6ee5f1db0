#ifndef ZV_MAP_COMMAND_H
#define ZV_MAP_COMMAND_H

#include <string>
#include <vector>

#include "zvFailure.h"

/// `zvgateway map`: prints what would become of an event's object, and does nothing else.
class zvMapCommand {
public:
    /// Those of an event, `key=value` each. Others than those of its object are not looked at.
    std::vector<std::string> arguments;
    /// Also prints why.
    bool explain = false;

    /// Throws the zvProgramFailure of an object that is refused.
    zvExitCode run() const;
};

#endif
