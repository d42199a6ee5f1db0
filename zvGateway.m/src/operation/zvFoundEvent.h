#ifndef ZV_FOUND_EVENT_H
#define ZV_FOUND_EVENT_H

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "zvEventHistory.h"
#include "zvEventOutcome.h"

/// An event as its directory has it.
struct zvFoundEvent {
    enum class State { arrived, stopped, running, neverEnded, dryRun, noRecord, unreadable };
    static constexpr const char* stateWords[] = {"arrived", "stopped",   "running",   "never-ended",
                                                 "dry-run", "no-record", "unreadable"};
    static constexpr std::size_t numStates = 7;

    std::filesystem::path directory;
    State state = State::noRecord;
    zvEventHistory history;
    /// Why the record cannot be read; printable.
    std::string fault;

    std::filesystem::path recordFile() const;
    /// Whether the program made the directory for an event, as far as its files tell.
    bool isEvent() const;
    /// The directory's name, printable.
    std::string name() const;
    /// As in "stopped at file transfer"; printable.
    std::string stateText() const;
    /// What it stopped on and why; printable.
    std::string reason() const;
    /// The object's type and key, or what is known of them; printable.
    std::string object() const;
    /// An argument's value, printable; empty if there is none.
    std::string argument(const char* key) const;
    /// Since the first attempt began, in seconds; without a value before.
    std::optional<std::int64_t> age(std::int64_t now) const;

    /// What is known of the event, for whoever says what becomes of it now.
    zvEventOutcome outcome() const;

    /// Looks at the event in this directory.
    static zvFoundEvent in(const std::filesystem::path& directory, zvEventHistory::Detail detail);
    /// Calls `visit` for each directory below the root, links left out, in the order in which the system has
    /// them: one is in memory at a time. Throws the zvProgramFailure of a root that cannot be read.
    static void forEachIn(const std::filesystem::path& root, zvEventHistory::Detail detail,
                          const std::function<void(const zvFoundEvent&)>& visit);
};

#endif
