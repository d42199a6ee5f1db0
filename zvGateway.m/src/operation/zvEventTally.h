#ifndef ZV_EVENT_TALLY_H
#define ZV_EVENT_TALLY_H

#include <array>
#include <string>

#include "zvEventOutcome.h"
#include "zvProgressMeter.h"

/// Counts what becomes of many events, and tells it: a line for each on standard error, or an object on
/// standard output, and how far the work is; on a terminal in a status line, otherwise every ten seconds.
class zvEventTally {
public:
    /// `verb` is what is done with the events, as in "batch"; `tellsArrived` whether those that arrived get a
    /// line, too.
    zvEventTally(std::string verb, bool asJson, bool tellsArrived);

    /// `line` is the input's line that has the event; 0 for none. `share` is how much of the work is done,
    /// from 0 to 1; less than 0 when nobody knows.
    void add(const zvEventOutcome& outcome, long line, double share);
    /// The line at the end.
    void finish();

    /// Whether the other side has every event, those that were only tried left aside.
    bool hasAllArrived() const;

private:
    using Clock = zvProgressMeter::Clock;

    long count(zvEventOutcome::Kind kind) const;
    void tellOutcome(const zvEventOutcome& outcome, long line);
    void tellProgress(double share);
    std::string counts() const;
    std::string progress(double share);

    std::string m_strVerb;
    bool m_bAsJson;
    bool m_bTellsArrived;
    std::array<long, zvEventOutcome::numKinds> m_counts{};
    Clock::time_point m_start = Clock::now();
    Clock::time_point m_lastTold = m_start;
    zvProgressMeter m_meter{0, m_start};
};

#endif
