#ifndef ZV_EVENT_OUTCOME_H
#define ZV_EVENT_OUTCOME_H

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "zvFailure.h"

/// What became of an event that was taken, for people and for programs. Texts are printable; those that are
/// not known are empty.
struct zvEventOutcome {
    enum class Kind { arrived, arrivedBefore, tried, stopped, heldByAnother };
    static constexpr std::size_t numKinds = 5;

    Kind kind = Kind::stopped;
    std::string eventId;
    std::string directory;
    std::string event;
    /// The object's type and key.
    std::string object;
    /// What it stopped in, on and why.
    std::string step;
    std::string subject;
    std::string reason;
    zvExitCode exitCode = zvExitCode::success;
    double milliseconds = 0;

    /// Whether the other side has the event.
    bool hasArrived() const { return kind == Kind::arrived || kind == Kind::arrivedBefore; }
    /// Takes over what an event failed in.
    void setFailure(const zvProgramFailure& failure);

    /// One line of `key=value`, without a line feed; values with blanks are quoted.
    std::string text() const;
    nlohmann::ordered_json json() const;
};

#endif
