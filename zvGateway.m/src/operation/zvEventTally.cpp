#include "zvEventTally.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <numeric>

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

zvEventTally::zvEventTally(std::string verb, bool asJson, bool tellsArrived, const zvEventRunner& runner)
    : m_strVerb(std::move(verb)), m_bAsJson(asJson), m_bTellsArrived(tellsArrived), m_runner(runner) {}

void zvEventTally::add(const zvEventOutcome& outcome, double share) {
    ++m_counts[static_cast<std::size_t>(outcome.kind)];
    tellOutcome(outcome);
    tellProgress(share);
}

zvExitCode zvEventTally::endWithProcess() {
    constexpr double unknownShare = -1;
    if (const zvEventOutcome* const outcome = m_runner.running()) {
        add(*outcome, unknownShare);
    }
    finish();
    zvConsole::outcome("zvgateway: " + m_strVerb +
                           ": the process ends; the same command goes on with the events that are left",
                       true);
    return zvExitCode::events;
}

long zvEventTally::count(zvEventOutcome::Kind kind) const { return m_counts[static_cast<std::size_t>(kind)]; }

bool zvEventTally::hasAllArrived() const {
    return count(zvEventOutcome::Kind::stopped) + count(zvEventOutcome::Kind::heldByAnother) == 0;
}

void zvEventTally::tellOutcome(const zvEventOutcome& outcome) {
    const bool isFailure = outcome.exitCode != zvExitCode::success;
    if (m_bAsJson) {
        nlohmann::ordered_json json;
        if (m_line > 0) {
            json["line"] = m_line;
        }
        json.update(outcome.json());
        zvConsole::print(json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
        zvConsole::flush();
    } else if (isFailure || m_bTellsArrived) {
        zvConsole::outcome((m_line > 0 ? "line=" + std::to_string(m_line) + " " : "") + outcome.text(),
                           isFailure);
    }
}

void zvEventTally::finish() {
    const double seconds = std::chrono::duration<double>(Clock::now() - m_start).count();
    zvConsole::note(m_strVerb + ": " + counts() + " in " + fixed(seconds, "%.1f s"));
}

std::string zvEventTally::counts() const {
    using Kind = zvEventOutcome::Kind;
    const long all = std::accumulate(m_counts.begin(), m_counts.end(), 0L);
    std::string text = zvConsole::counted(all, "event") + ", " + std::to_string(count(Kind::arrived)) +
                       " arrived, " + std::to_string(count(Kind::stopped)) + " stopped";
    const auto add = [&](Kind kind, const char* words) {
        if (count(kind) > 0) {
            text.append(", ").append(std::to_string(count(kind))).append(" ").append(words);
        }
    };
    add(Kind::arrivedBefore, "arrived before");
    add(Kind::tried, "tried");
    add(Kind::heldByAnother, "left out, since another process has them");
    return text;
}

std::string zvEventTally::progress(double share) {
    const Clock::time_point now = Clock::now();
    const double seconds = std::chrono::duration<double>(now - m_start).count();
    using Kind = zvEventOutcome::Kind;
    const long taken = count(Kind::arrived) + count(Kind::tried) + count(Kind::stopped);
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
