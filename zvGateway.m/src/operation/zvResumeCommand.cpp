#include "zvResumeCommand.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "zvArgumentTexts.h"
#include "zvConsole.h"
#include "zvInterruption.h"
#include "zvProcess.h"
#include "zvUtf8Text.h"

namespace fs = std::filesystem;

namespace {

using State = zvFoundEvent::State;

std::string printable(const std::string& text) { return zvConsole::printable(text.c_str()); }

// What `--all` goes on with, or counts since another process does.
bool isOpen(const zvFoundEvent& event) {
    return event.state != State::arrived && event.state != State::dryRun && event.isEvent();
}

std::set<zvString> toNames(const std::vector<std::string>& utf8) {
    std::set<zvString> names;
    for (const std::string& name : utf8) {
        names.insert(fromUtf8(name));
    }
    return names;
}

zvEventOutcome refused(const zvFoundEvent& event, const std::string& reason) {
    zvEventOutcome outcome = event.outcome();
    outcome.setFailure({zvExitCode::shadowDirectory, "record", event.name(), reason});
    return outcome;
}

}  // namespace

zvExitCode zvResumeCommand::run(zvEventRunner& runner) {
    if (all != events.empty()) {
        throw zvProgramFailure{zvExitCode::usage, "options", "resume",
                               "it needs either the names of events or --all"};
    }
    runner.prepare();
    zvEventTally tally("resume", asJson, false, runner);
    if (all) {
        const long open = countOpen();
        long taken = 0;
        zvFoundEvent::forEachIn(
            fs::u8path(root), zvEventHistory::Detail::state, [&](const zvFoundEvent& event) {
                if (isOpen(event) && zvProcess::notedSignal() == 0) {
                    ++taken;
                    tally.add(outcomeOf(event, runner),
                              static_cast<double>(taken) / static_cast<double>(std::max(open, taken)));
                }
            });
    }
    double taken = 0;
    for (const std::string& name : events) {
        if (zvProcess::notedSignal() == 0) {
            const zvFoundEvent event = zvFoundEvent::in(find(name), zvEventHistory::Detail::state);
            tally.add(outcomeOf(event, runner), ++taken / static_cast<double>(events.size()));
        }
    }
    tally.finish();
    zvInterruption::throwIfRequested();
    return tally.hasAllArrived() ? zvExitCode::success : zvExitCode::events;
}

long zvResumeCommand::countOpen() const {
    long count = 0;
    zvFoundEvent::forEachIn(fs::u8path(root), zvEventHistory::Detail::state,
                            [&count](const zvFoundEvent& event) { count += isOpen(event) ? 1 : 0; });
    return count;
}

fs::path zvResumeCommand::find(const std::string& event) const {
    fs::path named = fs::u8path(root) / fs::u8path(event);
    std::error_code error;
    if (fs::u8path(event).filename().string() == event && event != "." && event != ".." &&
        fs::is_directory(named, error)) {
        return named;
    }
    constexpr std::size_t shortest = 8;
    std::vector<fs::path> found;
    if (event.size() >= shortest) {
        zvFoundEvent::forEachIn(fs::u8path(root), zvEventHistory::Detail::state,
                                [&](const zvFoundEvent& candidate) {
                                    if (candidate.history.eventId.compare(0, event.size(), event) == 0) {
                                        found.push_back(candidate.directory);
                                    }
                                });
    }
    if (found.size() != 1) {
        throw zvProgramFailure{zvExitCode::usage, "events", printable(event),
                               found.empty() ? "there is no such event below " + printable(root)
                                             : "more than one EventId begins so"};
    }
    return found.front();
}

zvEventOutcome zvResumeCommand::outcomeOf(const zvFoundEvent& event, zvEventRunner& runner) const {
    const zvEventHistory& history = event.history;
    if (event.state == State::running) {
        zvEventOutcome outcome = event.outcome();
        outcome.setFailure({zvExitCode::shadowDirectory, "record", event.name(),
                            "another process is running this event", true});
        return outcome;
    }
    if (event.state == State::noRecord || event.state == State::unreadable) {
        return refused(event, event.state == State::unreadable
                                  ? event.fault
                                  : "nothing is recorded of this event: run it anew with its arguments");
    }
    zvArgumentTexts texts;
    std::string fault;
    for (const auto& [key, value] : history.arguments) {
        fault = fault.empty() ? texts.add(key, value) : fault;
    }
    std::error_code error;
    const std::string place = fs::absolute(fs::u8path(root), error).lexically_normal().string();
    if (!fault.empty() || error) {
        return refused(event, fault.empty() ? zvProcess::messageOf(error) : fault);
    }
    std::vector<std::string> arguments = texts.take();
    arguments.push_back("RootShadowDir=" + place);
    arguments.push_back("EventShadowDir=" + event.directory.filename().string());
    const std::set<zvString> secrets = toNames(history.secrets);
    zvEventOutcome outcome = runner.run(std::move(arguments), history.knowsSecrets ? &secrets : nullptr);
    if (outcome.eventId.empty()) {
        // It stopped before it was known again.
        const zvEventOutcome before = event.outcome();
        outcome.eventId = before.eventId;
        outcome.directory = before.directory;
    }
    return outcome;
}
