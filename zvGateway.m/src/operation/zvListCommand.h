#ifndef ZV_LIST_COMMAND_H
#define ZV_LIST_COMMAND_H

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "zvFailure.h"
#include "zvFoundEvent.h"

/// The subcommand that lists the events below a root shadow directory: a line for each, in the order in which
/// the system has the directories.
class zvListCommand {
public:
    std::string root;
    /// Of zvFoundEvent::stateWords; empty for all.
    std::vector<std::string> states;
    /// As zvTimeSpan::parseInstant() takes it: events whose last attempt began before are left out.
    std::string since;
    bool asJson = false;
    /// The page to be written instead; empty for none.
    std::string page;

    zvExitCode run();

private:
    bool isWanted(const zvFoundEvent& event) const;
    void print(const zvFoundEvent& event) const;
    void printJson(const zvFoundEvent& event) const;
    void printTotal() const;
    void writePage();

    std::int64_t m_now = 0;
    std::int64_t m_since = 0;
    std::array<long, zvFoundEvent::numStates> m_counts{};
};

#endif
