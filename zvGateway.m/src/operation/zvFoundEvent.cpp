#include "zvFoundEvent.h"

#include <system_error>

#include "zvConsole.h"
#include "zvFailure.h"
#include "zvProcess.h"
#include "zvUtcTime.h"

namespace fs = std::filesystem;

namespace {

fs::path fileIn(const fs::path& directory, const char* suffix) {
    fs::path name = directory.filename();
    return directory / (name += suffix);
}

// What is posted has arrived, whatever became of the process afterwards.
zvFoundEvent::State stateOf(const zvEventHistory& history, const fs::path& record) {
    using State = zvFoundEvent::State;
    if (history.isPosted) {
        return State::arrived;
    }
    if (history.attempts == 0) {
        return zvProcess::isLocked(record) ? State::running : State::noRecord;
    }
    if (history.end.empty()) {
        return zvProcess::isLocked(record) ? State::running : State::neverEnded;
    }
    return history.exitCode != 0 ? State::stopped : State::dryRun;
}

}  // namespace

fs::path zvFoundEvent::recordFile() const { return fileIn(directory, zvEventHistory::fileSuffix); }

bool zvFoundEvent::isEvent() const {
    std::error_code error;
    return state != State::noRecord || fs::exists(fileIn(directory, "_data.xml"), error);
}

std::string zvFoundEvent::name() const { return zvConsole::printable(directory.filename().string().c_str()); }

std::string zvFoundEvent::stateText() const {
    const std::string word = stateWords[static_cast<int>(state)];
    return state == State::stopped ? word + " at " + zvConsole::printableUtf8(history.failedStep) : word;
}

std::string zvFoundEvent::reason() const {
    const std::string subject = zvConsole::printableUtf8(history.failedSubject);
    const std::string why = zvConsole::printableUtf8(history.reason);
    return !fault.empty() ? fault : subject.empty() || why.empty() ? subject + why : subject + ": " + why;
}

std::string zvFoundEvent::object() const {
    if (!history.object.empty()) {
        return zvConsole::printableUtf8(history.object);
    }
    const std::string type = argument("LocalType");
    return type.empty() ? argument("RemoteType") : type;
}

std::string zvFoundEvent::argument(const char* key) const {
    const auto found = history.arguments.find(key);
    return found == history.arguments.end() ? "" : zvConsole::printableUtf8(found->second);
}

std::optional<std::int64_t> zvFoundEvent::age(std::int64_t now) const {
    const std::optional<std::int64_t> begin = zvUtcTime::toSeconds(history.firstBegin);
    return begin ? std::optional(now - *begin) : std::nullopt;
}

zvEventOutcome zvFoundEvent::outcome() const {
    zvEventOutcome outcome;
    outcome.eventId = zvConsole::printableUtf8(history.eventId);
    outcome.directory = zvConsole::printable(directory.string().c_str());
    outcome.event = argument("EventName");
    outcome.object = object();
    return outcome;
}

zvFoundEvent zvFoundEvent::in(const fs::path& directory, zvEventHistory::Detail detail) {
    zvFoundEvent event;
    event.directory = directory;
    const fs::path record = event.recordFile();
    std::error_code error;
    event.fault = event.history.read(record, detail, error);
    if (error && error != std::errc::no_such_file_or_directory) {
        event.fault = zvProcess::messageOf(error);
    }
    if (!event.fault.empty()) {
        event.state = State::unreadable;
    } else if (!error) {
        event.state = stateOf(event.history, record);
    }
    return event;
}

void zvFoundEvent::forEachIn(const fs::path& root, zvEventHistory::Detail detail,
                             const std::function<void(const zvFoundEvent&)>& visit) {
    std::error_code error;
    for (fs::directory_iterator entry(root, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (zvProcess::statusOf(entry->path(), ignored).type() == fs::file_type::directory) {
            visit(in(entry->path(), detail));
        }
    }
    if (error) {
        throw zvProgramFailure{zvExitCode::shadowDirectory, "events",
                               zvConsole::printable(root.string().c_str()), zvProcess::messageOf(error)};
    }
}
