#ifndef ZV_RESUME_COMMAND_H
#define ZV_RESUME_COMMAND_H

#include <filesystem>
#include <string>
#include <vector>

#include "zvEventRunner.h"
#include "zvEventTally.h"
#include "zvFoundEvent.h"

/// The subcommand that goes on with events that stopped, by what their records say.
class zvResumeCommand {
public:
    std::string root;
    /// Directories' names, or the beginnings of EventIds, of 8 characters at least.
    std::vector<std::string> events;
    /// Every event that stopped or never ended.
    bool all = false;
    bool asJson = false;

    /// Throws the zvProgramFailure of what ends the whole command.
    zvExitCode run(zvEventRunner& runner);

private:
    long countOpen() const;
    std::filesystem::path find(const std::string& event) const;
    zvEventOutcome outcomeOf(const zvFoundEvent& event, zvEventRunner& runner) const;
};

#endif
