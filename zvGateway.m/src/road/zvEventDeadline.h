#ifndef ZV_EVENT_DEADLINE_H
#define ZV_EVENT_DEADLINE_H

#include <chrono>
#include <string>

/// The time that one run of an event may take in total, counted from the object's creation: "event-timeout"
/// of the client configuration. Without one, as long as it takes.
class zvEventDeadline {
public:
    /// Zero is no limit.
    void set(std::chrono::seconds limit);

    /// To be asked by any thread.
    bool isOver() const;
    /// The seconds that are left, at least 1; 0 without a limit.
    int secondsLeft() const;
    /// Throws the zvStepFailure of a time that is over, with what was being waited for, if that is known.
    void throwIfOver(const std::string& subject, const std::string& reason = "") const;

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point m_begin = Clock::now();
    std::chrono::seconds m_limit{0};
};

#endif
