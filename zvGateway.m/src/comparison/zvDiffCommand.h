#ifndef ZV_DIFF_COMMAND_H
#define ZV_DIFF_COMMAND_H

#include <functional>
#include <string>
#include <vector>

#include "zvCaseOutcome.h"
#include "zvFailure.h"

/// `zvgateway diff`: tells what differs in meaning between two configurations.
class zvDiffCommand {
public:
    std::string before;
    std::string after;
    /// The HTML page to write; empty to print.
    std::string page;
    bool asJson = false;
    /// Runs the cases whose outcomes are compared, by the configuration that the library has; empty for none.
    std::function<std::vector<zvCaseOutcome>()> runCases;

    /// Throws a zvProgramFailure when a file is not read to its end, and when the page cannot be written.
    zvExitCode run() const;

private:
    void refuseToReplaceInput() const;
};

#endif
