#include "zvEventTally.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "zvConsole.h"
#include "zvProcess.h"
#include "zvTimeSpan.h"

namespace {

constexpr std::chrono::milliseconds terminalPause{200};
constexpr std::chrono::seconds linePause{10};
constexpr int barWidth = 24;

std::string bar(double share) {
    const int done = static_cast<int>(share * barWidth);
    return "[" + std::string(static_cast<std::size_t>(done), '=') +
           std::string(static_cast<std::size_t>(barWidth - done), ' ') + "] ";
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

zvEventTally::~zvEventTally() { clearStatus(); }

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
        clearStatus();
        zvConsole::outcome((line > 0 ? "line=" + std::to_string(line) + " " : "") + outcome.text(),
                           isFailure);
    }
}

void zvEventTally::note(const std::string& text) {
    clearStatus();
    zvConsole::note(text);
}

void zvEventTally::finish() {
    clearStatus();
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

std::string zvEventTally::progress(double share) const {
    const double seconds = std::chrono::duration<double>(Clock::now() - m_start).count();
    const long taken = m_arrived + m_tried + m_stopped;
    std::string text =
        counts() + ", " + fixed(static_cast<double>(taken) / std::max(seconds, 1e-3), "%.1f/s");
    if (share > 0) {
        constexpr double percent = 100;
        text += ", " + fixed(share * percent, "%.0f %%") + ", " +
                zvTimeSpan::text(static_cast<std::int64_t>(seconds / share - seconds)) + " left";
    }
    return text;
}

void zvEventTally::tellProgress(double share) {
    const int width = zvConsole::isQuiet() ? 0 : zvProcess::terminalWidth();
    const auto now = Clock::now();
    if (now - m_lastTold < (width > 0 ? Clock::duration(terminalPause) : Clock::duration(linePause))) {
        return;
    }
    m_lastTold = now;
    if (width == 0) {
        zvConsole::note(m_strVerb + ": " + progress(share));
        return;
    }
    clearStatus();
    std::string status = (share > 0 ? bar(share) : "") + progress(share);
    status.resize(std::min(status.size(), static_cast<std::size_t>(width - 1)));
    std::fprintf(stderr, "%s", status.c_str());
    std::fflush(stderr);
    m_statusLength = status.size();
}

void zvEventTally::clearStatus() {
    if (m_statusLength > 0) {
        std::fprintf(stderr, "\r%s\r", std::string(m_statusLength, ' ').c_str());
        m_statusLength = 0;
    }
}
