#include "zvListCommand.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <numeric>

#include "zvConsole.h"
#include "zvEventListPage.h"
#include "zvReplacedFile.h"
#include "zvTimeSpan.h"
#include "zvUtcTime.h"

namespace {

constexpr std::size_t shortId = 8;

// Padded to the column's width; a longer text keeps its length, since nothing of it may be lost.
void addColumn(std::string& line, const std::string& text, int width) {
    line.append(text.empty() ? "-" : text);
    const int length = text.empty() ? 1 : zvString(text.c_str()).size();
    line.append(static_cast<std::size_t>(std::max(width - length, 0)) + 2, ' ');
}

struct Row {
    std::string directory;
    std::string id;
    std::string event;
    std::string object;
    std::string state;
    std::string age;
    std::string attempts;
    std::string reason;
};

void printRow(const Row& row) {
    std::string line;
    addColumn(line, row.directory, 12);
    addColumn(line, row.id, static_cast<int>(shortId));
    addColumn(line, row.event, 20);
    addColumn(line, row.object, 24);
    addColumn(line, row.state, 24);
    addColumn(line, row.age, 4);
    addColumn(line, row.attempts, 5);
    zvConsole::print(line + row.reason + "\n");
}

std::string ageText(const zvFoundEvent& event, std::int64_t now) {
    const std::optional<std::int64_t> age = event.age(now);
    return age ? zvTimeSpan::text(std::max<std::int64_t>(*age, 0)) : "-";
}

}  // namespace

zvExitCode zvListCommand::run() {
    m_now = zvUtcTime::nowInSeconds();
    if (!since.empty()) {
        const std::optional<std::int64_t> instant = zvTimeSpan::parseInstant(since, m_now);
        if (!instant) {
            throw zvProgramFailure{zvExitCode::usage, "options", "--since",
                                   zvConsole::printable(since.c_str()) +
                                       " is neither a time like 12h or 30d nor a date like 2026-11-25"};
        }
        m_since = *instant;
    }
    if (!page.empty()) {
        writePage();
        return zvExitCode::success;
    }
    if (!asJson) {
        printRow({"DIRECTORY", "ID", "EVENT", "OBJECT", "STATE", "AGE", "TRIES", "REASON"});
    }
    zvFoundEvent::forEachIn(std::filesystem::u8path(root), zvEventHistory::Detail::state,
                            [this](const zvFoundEvent& event) {
                                if (isWanted(event)) {
                                    ++m_counts[static_cast<std::size_t>(event.state)];
                                    asJson ? printJson(event) : print(event);
                                }
                            });
    printTotal();
    return zvExitCode::success;
}

bool zvListCommand::isWanted(const zvFoundEvent& event) const {
    const char* const word = zvFoundEvent::stateWords[static_cast<int>(event.state)];
    if (!states.empty() && std::find(states.begin(), states.end(), word) == states.end()) {
        return false;
    }
    return since.empty() || zvUtcTime::toSeconds(event.history.begin).value_or(m_since) >= m_since;
}

void zvListCommand::print(const zvFoundEvent& event) const {
    printRow({event.name(), zvConsole::printable(event.history.eventId.substr(0, shortId).c_str()),
              event.argument("EventName"), event.object(), event.stateText(), ageText(event, m_now),
              std::to_string(event.history.attempts), event.reason()});
}

void zvListCommand::printJson(const zvFoundEvent& event) const {
    using nlohmann::ordered_json;
    const zvEventHistory& history = event.history;
    ordered_json json = {{"directory", event.name()},
                         {"eventId", history.eventId},
                         {"event", event.argument("EventName")},
                         {"object", event.object()},
                         {"state", zvFoundEvent::stateWords[static_cast<int>(event.state)]},
                         {"attempts", history.attempts},
                         {"firstBegin", history.firstBegin},
                         {"begin", history.begin},
                         {"end", history.end}};
    if (const std::optional<std::int64_t> age = event.age(m_now)) {
        json["ageSeconds"] = *age;
    }
    if (event.state == zvFoundEvent::State::stopped) {
        json["exitCode"] = history.exitCode;
        json["step"] = history.failedStep;
    }
    const std::string reason = event.reason();
    if (!reason.empty()) {
        json["reason"] = reason;
    }
    zvConsole::print(json.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n");
}

void zvListCommand::printTotal() const {
    std::string text = zvConsole::counted(std::accumulate(m_counts.begin(), m_counts.end(), 0L), "event");
    const char* separator = ": ";
    for (std::size_t i = 0; i < m_counts.size(); ++i) {
        if (m_counts[i] > 0) {
            text.append(separator).append(std::to_string(m_counts[i])).append(" ");
            text.append(zvFoundEvent::stateWords[i]);
            separator = ", ";
        }
    }
    zvConsole::note(text);
}

void zvListCommand::writePage() {
    zvEventListPage events(m_now);
    zvFoundEvent::forEachIn(std::filesystem::u8path(root), zvEventHistory::Detail::all,
                            [&](const zvFoundEvent& event) {
                                if (isWanted(event)) {
                                    ++m_counts[static_cast<std::size_t>(event.state)];
                                    events.add(event);
                                }
                            });
    zvReplacedFile::write(page, events.html(root));
    printTotal();
}
