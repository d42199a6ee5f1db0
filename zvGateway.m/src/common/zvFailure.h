#ifndef ZV_FAILURE_H
#define ZV_FAILURE_H

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
    post = 9,
    /// Not all events of a command that takes several arrived.
    events = 10,
    /// Cases of `test` failed.
    cases = 11,
    /// Two configurations differ.
    differences = 12
};

/// Thrown by a step of the road that could not do its job. The texts are printable.
struct zvStepFailure {
    /// What the step failed on: a file, or an argument.
    std::string subject;
    std::string reason;
    /// Nothing is wrong with the event: another process is running it.
    bool isHeldByAnother = false;
};

/// Thrown to end the program: with this exit code, and one line that names where, on what and why.
struct zvProgramFailure {
    zvExitCode exitCode;  // or 128 + the number of the signal that ended the work
    /// What the program was doing: the name of a step, or what a command works on.
    std::string step;
    std::string subject;
    std::string reason;
    /// As in zvStepFailure.
    bool isHeldByAnother = false;
};

#endif
