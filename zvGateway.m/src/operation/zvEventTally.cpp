#include "zvEventTally.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "zvConsole.h"

namespace {

constexpr std::chrono::milliseconds terminalPause{200};
constexpr std::chrono::seconds linePause{10};

std::string bar(double share) {
    constexpr double width = 24;
    const auto done = static_cast<std::size_t>(std::min(share, 1.0) * width);
    return "[" + std::string(done, '=') + std::string(static_cast<std::size_t>(width) - done, ' ') + "] ";
}

std::string fixed(double value, const char* format) {
    constexpr std::size_t width = 40;
    char text[width];
    std::snprintf(text, width, format, value);
    return text;
}

}  // namespace

zvEventTally::zvEventTally(std::string verb, bool asJson, bool tellsArrived)
    : m_strVerb(std::move(verb)), m_bAsJson(asJson), m_bTellsArrived(tellsArrived) {}

void zvEventTally::add(const zvEventOutcome& outcome, long line, double share) {
    count(outcome);
    tellOutcome(outcome, line);
    tellProgress(share);
}

void zvEventTally::count(const zvEventOutcome& outcome) {
    using Kind = zvEventOutcome::Kind;
    switch (outcome.kind) {
        case Kind::arrived:
            ++m_arrived;
            break;
        case Kind::arrivedBefore:
            ++m_before;
            break;
        case Kind::tried:
            ++m_tried;
            break;
        case Kind::stopped:
            ++m_stopped;
            break;
        case Kind::heldByAnother:
            ++m_held;
            break;
    }
}

void zvEventTally::tellOutcome(const zvEventOutcome& outcome, long line) {
    const bool isFailure = outcome.exitCode != zvExitCode::success;
    if (m_bAsJson) {
        nlohmann::ordered_json json;
        if (line > 0) {
            json["line"] = line;
        }
        json.update(outcome.json());
        zvConsole::print(json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
        zvConsole::flush();
    } else if (isFailure || m_bTellsArrived) {
        zvConsole::outcome((line > 0 ? "line=" + std::to_string(line) + " " : "") + outcome.text(),
                           isFailure);
    }
}

void zvEventTally::finish() {
    const double seconds = std::chrono::duration<double>(Clock::now() - m_start).count();
    zvConsole::note(m_strVerb + ": " + counts() + " in " + fixed(seconds, "%.1f s"));
}

std::string zvEventTally::counts() const {
    const long all = m_arrived + m_before + m_tried + m_stopped + m_held;
    std::string text = zvConsole::counted(all, "event") + ", " + std::to_string(m_arrived) + " arrived, " +
                       std::to_string(m_stopped) + " stopped";
    const auto add = [&text](long count, const char* words) {
        if (count > 0) {
            text.append(", ").append(std::to_string(count)).append(" ").append(words);
        }
    };
    add(m_before, "arrived before");
    add(m_tried, "tried");
    add(m_held, "left out, since another process has them");
    return text;
}

std::string zvEventTally::progress(double share) {
    const Clock::time_point now = Clock::now();
    const double seconds = std::chrono::duration<double>(now - m_start).count();
    const long taken = m_arrived + m_tried + m_stopped;
    std::string text =
        counts() + ", " + fixed(static_cast<double>(taken) / std::max(seconds, 1e-3), "%.1f/s");
    if (share > 0) {
        m_meter.reach(share, now);
        text += ", " + m_meter.percent(1) + ", " + m_meter.timeLeft(1);
    }
    return text;
}

void zvEventTally::tellProgress(double share) {
    const std::size_t columns = zvConsole::rewritableColumns();
    const auto now = Clock::now();
    const auto pause = columns > 0 ? Clock::duration(terminalPause) : Clock::duration(linePause);
    if (!zvConsole::showsProgress() || now - m_lastTold < pause) {
        return;
    }
    m_lastTold = now;
    if (columns == 0) {
        zvConsole::note(m_strVerb + ": " + progress(share));
    } else {
        zvConsole::rewrite(((share > 0 ? bar(share) : "") + progress(share)).substr(0, columns));
    }
}
