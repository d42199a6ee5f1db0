#include "zvShadowDirectoryStep.h"

#include <filesystem>
#include <system_error>

#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvNativePath.h"

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

std::string refusal(const zvResult& result) {
    return result.getMessage().empty() ? "it could not be created"
                                       : zvConsole::printable(result.getMessage());
}

}  // namespace

zvStepOutcome zvShadowDirectoryStep::run() {
    const zvString root = m_event.argument("RootShadowDir");
    const zvString error = zvDirFileUtils::getAccessError(root, zvDirFileUtils::readAndWrite);
    if (!error.empty()) {
        throw failure(root, zvConsole::printable(error));
    }
    const zvString name = m_event.argument("EventShadowDir");
    if (name.empty()) {
        makeDirectory();
    } else {
        resumeIn(name);
    }
    zvConsole::fact("directory", zvConsole::printablePath(m_event.directory()));
    m_event.progress = std::make_unique<zvEventProgress>(
        m_event.directory() + "\\" + m_event.argument("EventShadowDir") + "_progress.txt");
    for (const char* const key : fileKeys) {
        zvConsole::fact(key, zvConsole::printablePath(m_event.file(key)));
    }
    return zvStepOutcome::done(name.empty() ? "a new one" : "the one of an earlier run");
}

void zvShadowDirectoryStep::makeDirectory() {
    const zvString root = m_event.argument("RootShadowDir");
    const zvResult made = zvEventArguments::populateEventArguments(root, *m_event.arguments);
    if (!made.isOk()) {
        throw failure(root, refusal(made));
    }
    requireFiles(refusal(made));
}

void zvShadowDirectoryStep::resumeIn(const zvString& name) {
    if (!isPlainName(name)) {
        throw failure(name, "\"EventShadowDir\" has to be the name of a directory below \"RootShadowDir\"");
    }
    std::error_code error;
    if (!std::filesystem::is_directory(toNativePath(m_event.directory()), error)) {
        throw failure(m_event.directory(), error ? error.message() : "Not a directory");
    }
    m_event.arguments->setEventArgument("DataFileName", name + "_data.xml");
    m_event.arguments->setEventArgument("AttachmentsFileName", name + "_attachments.xml");
    std::string reason;
    for (const char* const key : fileKeys) {
        const zvString file = m_event.file(key);
        if (!zvDirFileUtils::isAccessible(file, zvDirFileUtils::existence)) {
            reason = refusal(zvDirFileUtils::createFile(file));
        }
    }
    requireFiles(reason);
}

void zvShadowDirectoryStep::requireFiles(const std::string& reason) const {
    for (const char* const key : fileKeys) {
        const zvString file = m_event.file(key);
        if (!zvDirFileUtils::isAccessible(file, zvDirFileUtils::existence)) {
            throw failure(file, reason);
        }
    }
}
