#include "zvAttachmentsStep.h"

#include <filesystem>
#include <system_error>

#include "zvAttachmentParser.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvException.h"
#include "zvFindingList.h"
#include "zvNativePath.h"
#include "zvProcess.h"

namespace fs = std::filesystem;

namespace {

zvStepFailure failure(const zvString& file, const std::string& reason) {
    return {zvConsole::printablePath(file), reason};
}

void requireReadable(const zvString& file) {
    const zvString error = zvDirFileUtils::getAccessError(file, zvDirFileUtils::readable);
    if (!error.empty()) {
        throw failure(file, zvConsole::printable(error));
    }
}

std::string modeOf(const zvAttachment& attachment) {
    return zvConsole::printable(zvAttachment::getFileTransferModeStr(attachment.getFileTransferMode()));
}

}  // namespace

zvStepOutcome zvAttachmentsStep::run() {
    const zvString file = m_event.argument("AttachmentsFile");
    if (file.empty()) {
        return zvStepOutcome::leftOut("the event has none");
    }
    requireReadable(file);
    readList(file);
    showAttachments();
    copyList(file);
    return zvStepOutcome::done(zvConsole::counted(m_event.attachments.numAttachments(), "attachment"));
}

void zvAttachmentsStep::readList(const zvString& file) {
    zvFindingList findings;
    try {
        zvAttachmentParser(&findings).parse(&m_event.attachments, file, true);
    } catch (const zvException& exception) {
        const std::string reason = findings.lastError();
        throw failure(file,
                      reason.empty() ? zvConsole::printable(exception.getResult().getMessage()) : reason);
    }
    if (!findings.brokenDocument().empty()) {
        throw failure(file, findings.brokenDocument());
    }
}

void zvAttachmentsStep::showAttachments() const {
    for (int i = 0; i < m_event.attachments.numAttachments(); ++i) {
        const zvAttachment& attachment = *m_event.attachments.getAttachment(i);
        const zvString path = attachment.getFilePath();
        const bool hasArrived = m_event.record->hasArrived(path);
        if (!hasArrived) {
            requireReadable(path);
        }
        zvConsole::fact(modeOf(attachment),
                        zvConsole::printablePath(path) + (hasArrived                    ? ", arrived before"
                                                          : attachment.getToBeDeleted() ? ", then deleted"
                                                                                        : ""));
    }
}

// The event's directory has everything that belongs to the event. The copy is as old as the list, so that a
// list which has arrived is known again.
void zvAttachmentsStep::copyList(const zvString& file) const {
    const zvString target = m_event.attachmentsFile();
    const fs::path from = toNativePath(file);
    const fs::path to = toNativePath(target);
    std::error_code error;
    const bool isItself = fs::equivalent(from, to, error);
    if (!isItself && !error) {
        const fs::perms own = fs::status(to, error).permissions();
        zvProcess::copyFile(from, to, error);
        // The copy has got the rights of the list.
        std::error_code refused;
        fs::permissions(to, own, refused);
        error = error ? error : refused;
    }
    if (!isItself && !error) {
        fs::last_write_time(to, fs::last_write_time(from, error), error);
    }
    if (error) {
        throw failure(target, zvProcess::messageOf(error));
    }
    zvConsole::fact("list", zvConsole::printablePath(target));
}
