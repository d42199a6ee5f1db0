#include "zvEventDeadline.h"

#include <algorithm>

#include "zvFailure.h"

void zvEventDeadline::set(std::chrono::seconds limit) { m_limit = limit; }

bool zvEventDeadline::isOver() const { return m_limit.count() > 0 && Clock::now() - m_begin >= m_limit; }

int zvEventDeadline::secondsLeft() const {
    if (m_limit.count() == 0) {
        return 0;
    }
    const auto left = std::chrono::ceil<std::chrono::seconds>(m_begin + m_limit - Clock::now());
    return static_cast<int>(std::max(left, std::chrono::seconds(1)).count());
}

void zvEventDeadline::throwIfOver(const std::string& subject, const std::string& reason) const {
    if (isOver()) {
        throw zvStepFailure{subject, (reason.empty() ? "" : reason + "; ") + "the event has taken the " +
                                         std::to_string(m_limit.count()) +
                                         " s of \"event-timeout\" in client-config.ini: go on with it later"};
    }
}
