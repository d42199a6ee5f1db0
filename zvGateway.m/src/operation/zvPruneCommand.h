#ifndef ZV_PRUNE_COMMAND_H
#define ZV_PRUNE_COMMAND_H

#include <cstdint>
#include <filesystem>
#include <string>

#include "zvFailure.h"
#include "zvFoundEvent.h"

/// The subcommand that removes the directories of events that arrived, and of no others.
class zvPruneCommand {
public:
    std::string root;
    /// As zvTimeSpan::parse() takes it: since the event's last attempt.
    std::string olderThan;
    /// Only tells what would be removed.
    bool isDryRun = false;

    /// Tells each directory that cannot be removed; the exit code is then that of a shadow directory.
    zvExitCode run();

private:
    bool isDue(const zvFoundEvent& event, std::int64_t before) const;
    void prune(const zvFoundEvent& event);
    void remove(const zvFoundEvent& event);

    long m_removed = 0;
    long m_kept = 0;
    std::uintmax_t m_bytes = 0;
};

#endif
