#ifndef ZV_EVENT_TALLY_H
#define ZV_EVENT_TALLY_H

#include <array>
#include <string>

#include "zvEventOutcome.h"
#include "zvEventRunner.h"
#include "zvProcessEnd.h"
#include "zvProgressMeter.h"

/// Counts what becomes of many events, and tells it: a line for each on standard error, or an object on
/// standard output, and how far the work is; on a terminal in a status line, otherwise every ten seconds.
class zvEventTally {
public:
    /// `verb` is what is done with the events, as in "batch"; `tellsArrived` whether those that arrived get a
    /// line, too. If the process ends in an event of `runner`, this event and the end are told as well.
    zvEventTally(std::string verb, bool asJson, bool tellsArrived, const zvEventRunner& runner);

    /// Before an event: `line` is the input's line that has it; 0 for none.
    void begin(long line) { m_line = line; }
    /// After it. `share` is how much of the work is done, from 0 to 1; less than 0 when nobody knows.
    void add(const zvEventOutcome& outcome, double share);
    /// The line at the end.
    void finish();

    /// Whether the other side has every event, those that were only tried left aside.
    bool hasAllArrived() const;

private:
    using Clock = zvProgressMeter::Clock;

    long count(zvEventOutcome::Kind kind) const;
    void tellOutcome(const zvEventOutcome& outcome);
    void tellProgress(double share);
    std::string counts() const;
    std::string progress(double share);
    zvExitCode endWithProcess();

    std::string m_strVerb;
    bool m_bAsJson;
    bool m_bTellsArrived;
    const zvEventRunner& m_runner;
    long m_line = 0;
    std::array<long, zvEventOutcome::numKinds> m_counts{};
    Clock::time_point m_start = Clock::now();
    Clock::time_point m_lastTold = m_start;
    zvProgressMeter m_meter{0, m_start};
    const zvProcessEnd m_processEnd{[this] { return endWithProcess(); }};
};

#endif
