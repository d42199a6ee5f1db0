#include "zvProgressMeter.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

zvProgressMeter::zvProgressMeter(double done, Clock::time_point now)
    : m_now{done, now}, m_mark(m_now), m_markBefore(m_now) {}

void zvProgressMeter::reach(double done, Clock::time_point now) {
    constexpr std::chrono::seconds betweenMarks{5};
    if (done < m_now.done) {
        *this = zvProgressMeter(done, now);
        return;
    }
    m_now = {done, now};
    if (now - m_mark.at >= betweenMarks) {
        m_markBefore = m_mark;
        m_mark = m_now;
    }
}

double zvProgressMeter::perSecond() const {
    const double seconds = std::chrono::duration<double>(m_now.at - m_markBefore.at).count();
    return seconds > 0 ? (m_now.done - m_markBefore.done) / seconds : 0;
}

std::string zvProgressMeter::percent(double total) const {
    constexpr double whole = 100;
    const double part = total > 0 ? std::floor(m_now.done / total * whole) : whole;
    return std::to_string(static_cast<int>(std::min(part, whole))) + " %";
}

std::string zvProgressMeter::timeLeft(double total) const {
    constexpr double longest = 100.0 * 3600;
    const double left = std::max(total - m_now.done, 0.0);
    const double pace = perSecond();
    if (left > 0 && (pace <= 0 || left / pace >= longest)) {
        return "ETA ?";
    }
    const int seconds = left > 0 ? static_cast<int>(std::ceil(left / pace)) : 0;
    constexpr std::size_t width = 40;
    constexpr int sixty = 60;
    char text[width];
    if (seconds >= sixty * sixty) {
        std::snprintf(text, width, "ETA %d:%02d:%02d", seconds / sixty / sixty, seconds / sixty % sixty,
                      seconds % sixty);
    } else {
        std::snprintf(text, width, "ETA %d:%02d", seconds / sixty, seconds % sixty);
    }
    return text;
}
