#include "zvShadowDirectoryStep.h"

#include <cstdint>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvHomeSettings.h"
#include "zvNativePath.h"
#include "zvProcess.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* fileKeys[] = {"DataFileName", "AttachmentsFileName"};

zvStepFailure failure(const zvString& file, const std::string& reason) {
    return {zvConsole::printablePath(file), reason};
}

// A name that leads nowhere else than into the root.
bool isPlainName(const zvString& name) {
    return name != "." && name != ".." && name.find("/") == -1 && name.find("\\") == -1 &&
           name.find(":") == -1;
}

// Of the file itself, and not of what a link leads to.
fs::file_status statusOf(const zvString& file) {
    std::error_code error;
    return zvProcess::statusOf(toNativePath(file), error);
}

// Whoever may write into the root could lead the event's data elsewhere, or keep it waiting at a pipe.
void requireOwnKind(const zvString& file, fs::file_type kind, const char* otherwise) {
    const fs::file_status status = statusOf(file);
    if (status.type() != kind) {
        throw failure(file, fs::is_symlink(status) ? "it is a link, and could lead elsewhere"
                            : fs::exists(status)   ? otherwise
                                                   : "No such file or directory");
    }
}

std::string refusal(const zvResult& result) {
    return result.getMessage().empty() ? "it could not be created"
                                       : zvConsole::printable(result.getMessage());
}

}  // namespace

zvStepOutcome zvShadowDirectoryStep::run() {
    const zvEventRecord::Given given = zvEventRecord::givenBy(*m_event.arguments);
    const zvString root = m_event.argument("RootShadowDir");
    const zvString error = zvDirFileUtils::getAccessError(root, zvDirFileUtils::readAndWrite);
    if (!error.empty()) {
        throw failure(root, zvConsole::printable(error));
    }
    const zvString name = m_event.argument("EventShadowDir");
    std::string fault;
    {
        const zvProcess::NewFileRights rights(zvHomeSettings::shadowMask(fault));
        if (name.empty()) {
            makeDirectory();
        } else {
            resumeIn(name);
        }
        zvConsole::fact("directory", zvConsole::printablePath(m_event.directory()));
        beginAttempt(given);
    }
    // Once there is a record, which then has the failure.
    for (const char* const key : fileKeys) {
        requireOwnKind(m_event.file(key), fs::file_type::regular, "it is no regular file");
    }
    if (!fault.empty()) {
        zvConsole::fact("warning", fault);
    }
    zvConsole::fact("event", zvConsole::printable(m_event.record->eventId()));
    for (const char* const key : fileKeys) {
        zvConsole::fact(key, zvConsole::printablePath(m_event.file(key)));
    }
    return zvStepOutcome::done(name.empty()                     ? "a new one"
                               : m_event.record->attempts() > 1 ? "the one of an earlier run"
                                                                : "the one that is named");
}

// The event gets a record only when it is the one whose record is there: another one's stays as it is.
void zvShadowDirectoryStep::beginAttempt(const zvEventRecord::Given& given) {
    const zvString file = zvEventRecord::fileIn(m_event.directory(), m_event.argument("EventShadowDir"));
    if (fs::exists(statusOf(file))) {
        requireOwnKind(file, fs::file_type::regular, "it is no regular file");
    }
    auto record = std::make_unique<zvEventRecord>(file);
    const zvString givenId = m_event.argument("EventId");
    std::vector<std::string> differences = record->differencesFrom(given);
    if (!givenId.empty() && !record->eventId().empty() && givenId != record->eventId()) {
        differences.push_back("EventId was \"" + zvConsole::printable(record->eventId()) + "\" and is \"" +
                              zvConsole::printable(givenId) + "\"");
    }
    if (!differences.empty()) {
        throw failure(m_event.directory(), "it is another event's: " + zvConsole::joined(differences, "; "));
    }
    const zvString id = !record->eventId().empty() ? record->eventId()
                        : !givenId.empty()         ? givenId
                                                   : m_event.eventId;
    m_event.logContext.setEventId(id);
    m_event.arguments->setEventArgument("EventId", id);
    record->beginAttempt(id, given, m_event.session.options.isDryRun);
    m_event.record = std::move(record);
}

void zvShadowDirectoryStep::makeDirectory() {
    const zvString root = m_event.argument("RootShadowDir");
    if (std::time(nullptr) > INT32_MAX) {
        makeDirectoryAfter2038(root);
        return;
    }
    const zvResult made = zvEventArguments::populateEventArguments(root, *m_event.arguments);
    if (!made.isOk()) {
        throw failure(root, refusal(made));
    }
    requireFiles(refusal(made));
}

// The library names directories by 32-bit seconds, which would be negative then.
void zvShadowDirectoryStep::makeDirectoryAfter2038(const zvString& root) {
    for (auto candidate = static_cast<zvInt64>(std::time(nullptr));; ++candidate) {
        const zvString name = std::to_string(candidate).c_str();
        std::error_code error;
        if (fs::create_directory(toNativePath(root + "\\" + name), error)) {
            m_event.arguments->setEventArgument("EventShadowDir", name);
            resumeIn(name);
            return;
        }
        if (error) {
            throw failure(root, zvProcess::messageOf(error));
        }
    }
}

void zvShadowDirectoryStep::resumeIn(const zvString& name) {
    if (!isPlainName(name)) {
        throw failure(name, "\"EventShadowDir\" has to be the name of a directory below \"RootShadowDir\"");
    }
    if (const zvString fault = zvDirFileUtils::getNameError(m_event.directory()); !fault.empty()) {
        throw failure(name, zvConsole::printable(fault));
    }
    requireOwnKind(m_event.directory(), fs::file_type::directory, "it is no directory");
    m_event.arguments->setEventArgument("DataFileName", name + "_data.xml");
    m_event.arguments->setEventArgument("AttachmentsFileName", name + "_attachments.xml");
    std::string reason;
    for (const char* const key : fileKeys) {
        const zvString file = m_event.file(key);
        if (!fs::exists(statusOf(file))) {
            reason = refusal(zvDirFileUtils::createFile(file));
        }
    }
    requireFiles(reason);
}

void zvShadowDirectoryStep::requireFiles(const std::string& reason) const {
    for (const char* const key : fileKeys) {
        const zvString file = m_event.file(key);
        if (!fs::exists(statusOf(file))) {
            throw failure(file, reason);
        }
    }
}
