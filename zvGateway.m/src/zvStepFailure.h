#ifndef ZV_STEP_FAILURE_H
#define ZV_STEP_FAILURE_H

#include <string>

/// The program's exit codes; every step of the road has one of its own.
enum class zvExitCode {
    success = 0,
    unexpected = 1,
    usage = 2,
    gatewayHome = 3,
    shadowDirectory = 4,
    attachments = 5,
    configuration = 6,
    mapping = 7,
    fileTransfer = 8,
    post = 9
};

/// Thrown by a step that could not do its job: it ends the road.
struct zvStepFailure {
    zvExitCode exitCode;
    std::string step;
    /// What the step failed on: a file, or an argument.
    std::string subject;
    std::string reason;
};

#endif
