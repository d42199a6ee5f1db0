#ifndef ZV_MAP_COMMAND_H
#define ZV_MAP_COMMAND_H

#include <optional>
#include <string>
#include <vector>

#include "zvFailure.h"
#include "zvLifecycleWay.h"
#include "zvMappingTrial.h"

/// `zvgateway map`: prints what would become of an event's object, and does nothing else.
class zvMapCommand {
public:
    /// Those of an event, `key=value` each. Others than those of its object are not looked at.
    std::vector<std::string> arguments;
    /// Also prints why.
    bool explain = false;
    bool asJson = false;

    /// Throws the zvProgramFailure of an object that is refused.
    zvExitCode run() const;

private:
    void print(const zvMappingTrial& trial, const std::optional<zvLifecycleWay>& way) const;
};

#endif
