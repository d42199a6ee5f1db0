#include "zvPruneCommand.h"

#include <system_error>
#include <vector>

#include "zvConsole.h"
#include "zvInterruption.h"
#include "zvProcess.h"
#include "zvTimeSpan.h"
#include "zvUtcTime.h"

namespace fs = std::filesystem;

namespace {

std::string printable(const fs::path& path) { return zvConsole::printable(path.string().c_str()); }

std::uintmax_t sizeOf(const fs::path& directory) {
    std::uintmax_t bytes = 0;
    std::error_code error;
    for (fs::recursive_directory_iterator entry(directory, error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code ignored;
        const fs::file_type type = zvProcess::statusOf(entry->path(), ignored).type();
        if (type == fs::file_type::regular) {
            bytes += entry->file_size(ignored);
        } else if (type == fs::file_type::symlink) {
            entry.disable_recursion_pending();
        }
    }
    return bytes;
}

}  // namespace

zvExitCode zvPruneCommand::run() {
    const std::optional<std::int64_t> span = zvTimeSpan::parse(olderThan);
    if (!span) {
        throw zvProgramFailure{zvExitCode::usage, "options", "--older-than",
                               zvConsole::printable(olderThan.c_str()) + " is no time like 12h or 30d"};
    }
    const std::int64_t before = zvUtcTime::nowInSeconds() - *span;
    zvFoundEvent::forEachIn(fs::u8path(root), zvEventHistory::Detail::state, [&](const zvFoundEvent& event) {
        if (zvProcess::notedSignal() == 0 && isDue(event, before)) {
            prune(event);
        }
    });
    zvConsole::print((isDryRun ? "would remove " : "removed ") +
                     zvConsole::counted(m_removed, "directory", "directories") + ", " +
                     zvConsole::size(static_cast<double>(m_bytes)) + "\n");
    zvInterruption::throwIfRequested();
    return m_kept == 0 ? zvExitCode::success : zvExitCode::shadowDirectory;
}

// An event that arrived without an end of its attempt is as old as the attempt's begin.
bool zvPruneCommand::isDue(const zvFoundEvent& event, std::int64_t before) const {
    const zvEventHistory& history = event.history;
    const auto last = zvUtcTime::toSeconds(history.end.empty() ? history.begin : history.end);
    return event.state == zvFoundEvent::State::arrived && last && *last < before;
}

void zvPruneCommand::prune(const zvFoundEvent& event) {
    const std::uintmax_t bytes = sizeOf(event.directory);
    try {
        if (isDryRun) {
            zvConsole::print(printable(event.directory) + "\n");
        } else {
            remove(event);
        }
        ++m_removed;
        m_bytes += bytes;
    } catch (const zvStepFailure& failure) {
        ++m_kept;
        zvConsole::outcome(failure.subject + ": " + failure.reason, true);
    }
}

// The record goes last: a process that is killed leaves an event that has arrived, and is removed the next
// time.
void zvPruneCommand::remove(const zvFoundEvent& event) {
    const fs::path record = event.recordFile();
    std::error_code error;
    zvProcess::FileLock lock;
    if (lock.take(record, error) != zvProcess::Lock::taken) {
        throw zvStepFailure{printable(record), zvProcess::messageOf(error)};
    }
    std::vector<fs::path> others;
    for (fs::directory_iterator entry(event.directory, error), end; !error && entry != end;
         entry.increment(error)) {
        if (entry->path() != record) {
            others.push_back(entry->path());
        }
    }
    others.push_back(record);
    others.push_back(event.directory);
    for (std::size_t i = 0; i < others.size() && !error; ++i) {
        if (others[i] == event.directory) {
            lock.release();
        }
        zvProcess::removeTree(others[i], error);
        if (error) {
            throw zvStepFailure{printable(others[i]), zvProcess::messageOf(error)};
        }
    }
    if (error) {
        throw zvStepFailure{printable(event.directory), zvProcess::messageOf(error)};
    }
}
