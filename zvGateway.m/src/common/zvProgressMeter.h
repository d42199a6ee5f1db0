#ifndef ZV_PROGRESS_METER_H
#define ZV_PROGRESS_METER_H

#include <chrono>
#include <string>

/// How fast a long piece of work goes, and how long it is going to take. The pace is that of the last five to
/// ten seconds, so that what was before a pause does not count for ever.
class zvProgressMeter {
public:
    using Clock = std::chrono::steady_clock;

    /// So much of the work was done before.
    zvProgressMeter(double done, Clock::time_point now);

    /// So much is done now. Less than before means that the work began again there.
    void reach(double done, Clock::time_point now);

    double perSecond() const;
    /// As in "42 %", never more than 100.
    std::string percent(double total) const;
    /// As in "ETA 0:25" and "ETA 1:02:03"; "ETA ?" as long as nothing moves.
    std::string timeLeft(double total) const;

private:
    struct Mark {
        double done;
        Clock::time_point at;
    };

    Mark m_now;
    Mark m_mark;
    Mark m_markBefore;
};

#endif
