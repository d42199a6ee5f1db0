#include "zvOperationCommands.h"

#include <algorithm>
#include <string>
#include <vector>

#include "zvConsole.h"
#include "zvProcess.h"
#include "zvRoadRunner.h"

namespace {

constexpr const char* names[] = {"batch", "list", "resume", "prune"};

constexpr char batchFooter[] =
    R"(The input has an event on each line: a JSON object of arguments, or a row of a table whose header has the
arguments' keys. Arguments given here are every event's. Each event has a directory, a record and a line of its
outcome; one that stops does not stop the others.

An entry is taken once: what identifies it, all its arguments or the value of --key, gives its directory its name. The
same batch started again goes on with what stopped and leaves out what arrived. Another name, or another file, makes
other events of the same entries.

Exit codes: 0 all events arrived, 10 some did not, 2 an input that cannot be read; 3 and 128 + a signal's number as for
an event. More than one process: see docs/operating.md.)";

constexpr char listFooter[] =
    R"(A line for each event, in no order: directory, the first eight characters of the EventId, event, object, state,
time since its first attempt, number of attempts, and what it stopped on and why. The states are
  arrived      the local server has answered
  stopped      a step failed, which is named
  running      a process is running it
  never-ended  the last attempt has no end: its process was killed, or the machine stopped
  dry-run      it was only tried
  no-record    nothing is known of it: its process was killed at once, or the directory is no event's
  unreadable   the record cannot be read)";

}  // namespace

void zvOperationCommands::declare(CLI::App& program) {
    declareBatch(program);
    declareList(program);
    declareResume(program);
    declarePrune(program);
}

bool zvOperationCommands::wasAskedFor(const CLI::App& program) {
    return std::any_of(std::begin(names), std::end(names),
                       [&program](const char* name) { return program.got_subcommand(name); });
}

zvExitCode zvOperationCommands::run(const CLI::App& program, zvRoadSession& session) {
    if (program.got_subcommand("list")) {
        return m_list.run();
    }
    zvProcess::noteSignals();
    if (program.got_subcommand("prune")) {
        return m_prune.run();
    }
    zvConsole::muteSteps();
    session.options.asJson = false;  // of one event's summary
    zvRoadRunner runner(session);
    return program.got_subcommand("batch") ? m_batch.run(runner) : m_resume.run(runner);
}

void zvOperationCommands::declareBatch(CLI::App& program) {
    CLI::App& batch = *program.add_subcommand("batch", "Takes the events of a file, one after the other");
    batch.add_option("file", m_batch.file, "The input; - for standard input")->required();
    batch.add_option("arguments", m_batch.common, "key=value, an argument of every event");
    std::vector<std::string> words;
    for (const auto& [word, format] : zvBatchCommand::formats) {
        words.emplace_back(word);
    }
    batch
        .add_option("--format", m_batch.format,
                    "Instead of what the file's extension, or a first character \"{\", says")
        ->check(CLI::IsMember(words));
    batch.add_option("--key", m_batch.key, "The key of the argument that identifies an entry");
    batch.add_option("--name", m_batch.name, "The batch's name, instead of the file's");
    batch.add_flag("--stop-on-error", m_batch.stopsOnError, "Ends with the first event that stops");
    batch.add_flag("--json", m_batch.asJson, "One JSON object for each event on standard output");
    batch.fallthrough();  // the event's options may come last
    batch.footer(batchFooter);
}

void zvOperationCommands::declareList(CLI::App& program) {
    CLI::App& list = *program.add_subcommand("list", "Lists the events below a root shadow directory");
    list.add_option("root", m_list.root, "The folder that events have as RootShadowDir")->required();
    list.add_option("--state", m_list.states, "Only events in this state; more than one with commas")
        ->delimiter(',')
        ->check(CLI::IsMember(std::vector<std::string>(std::begin(zvFoundEvent::stateWords),
                                                       std::end(zvFoundEvent::stateWords))));
    list.add_option(
        "--since", m_list.since,
        "Only events whose last attempt began since then: 90s, 15m, 12h, 30d, 2w, or a date or time "
        "as in 2026-11-25 and 2026-11-25T18:00");
    list.add_flag("--json", m_list.asJson, "One JSON object a line");
    list.add_option("--html", m_list.page,
                    "Writes a page with a search field and each event's steps instead");
    list.footer(listFooter);
}

void zvOperationCommands::declareResume(CLI::App& program) {
    CLI::App& resume = *program.add_subcommand("resume", "Goes on with events that stopped");
    resume.add_option("root", m_resume.root, "The folder that events have as RootShadowDir")->required();
    resume.add_option("events", m_resume.events,
                      "Names of directories, or beginnings of EventIds, 8 characters at least");
    resume.add_flag("--all", m_resume.all, "Every event that stopped or never ended");
    resume.add_flag("--json", m_resume.asJson, "One JSON object for each event on standard output");
    resume.fallthrough();
    resume.footer(
        "The arguments are those of the event's record; secrets, which it does not have, are given as for a "
        "new "
        "event.\nEvents that another process runs are left out and counted. Exit code 0 if all arrived, 10 "
        "if not.");
}

void zvOperationCommands::declarePrune(CLI::App& program) {
    CLI::App& prune = *program.add_subcommand("prune", "Removes the directories of events that arrived");
    prune.add_option("root", m_prune.root, "The folder that events have as RootShadowDir")->required();
    prune.add_option("--older-than", m_prune.olderThan, "Since the last attempt: 90s, 15m, 12h, 30d, 2w")
        ->required();
    prune.add_flag("--dry-run", m_prune.isDryRun, "Only prints what would be removed");
    prune.footer(
        "Never removes another event's. What is removed is forgotten: a batch that has it takes it again.");
}
