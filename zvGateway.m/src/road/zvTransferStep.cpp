#include "zvTransferStep.h"

#include <filesystem>
#include <system_error>

#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvException.h"
#include "zvFSClient.h"
#include "zvFSClientUtil.h"
#include "zvFileServerConnection.h"
#include "zvInterruption.h"
#include "zvJavaStart.h"
#include "zvNativePath.h"
#include "zvProcess.h"
#include "zvStringList.h"

namespace fs = std::filesystem;

namespace {

// From here on a person wants to know what is going on before the file is there.
constexpr zvInt64 largeFile = 16'000'000;

zvInt64 sizeOf(const zvString& file) {
    std::error_code error;
    const auto size = fs::file_size(toNativePath(file), error);
    return error ? 0 : static_cast<zvInt64>(size);
}

std::string sizeText(zvInt64 bytes) { return zvConsole::size(static_cast<double>(bytes)); }

}  // namespace

zvStepOutcome zvTransferStep::run() {
    const zvString configuration = zvCommonUtils::getConfigurationFile("fileserver.properties");
    if (!zvDirFileUtils::isAccessible(configuration, zvDirFileUtils::existence)) {
        return zvStepOutcome::leftOut("there is no " + zvConsole::printablePath(configuration));
    }
    zvConsole::fact("by", zvConsole::printablePath(configuration));
    if (m_event.record->isPosted()) {
        return zvStepOutcome::leftOut("the event was posted before");
    }
    if (m_event.session.options.isDryRun) {
        return showFiles();
    }
    if (isDone()) {
        return zvStepOutcome::leftOut("done before");
    }
    const auto failure = [&](const zvString& reason) {
        return zvStepFailure{zvConsole::printablePath(configuration), zvConsole::printable(reason)};
    };
    const zvString error = zvDirFileUtils::getAccessError(configuration, zvDirFileUtils::readable);
    if (!error.empty()) {
        throw failure(error);
    }
    try {
        return send(configuration);
    } catch (const zvException& exception) {
        zvInterruption::throwIfRequested();
        m_event.deadline.throwIfOver(zvConsole::printablePath(configuration));
        throw failure(zvFileServerConnection::reasonOf(exception));
    }
}

std::vector<zvString> zvTransferStep::files() const {
    std::vector<zvString> files{m_event.dataFile(), m_event.attachmentsFile()};
    for (int i = 0; i < m_event.attachments.numAttachments(); ++i) {
        files.push_back(m_event.attachments.getAttachment(i)->getFilePath());
    }
    return files;
}

// Every file is there as it is now, and those that have to be deleted are.
bool zvTransferStep::isDone() const {
    for (const zvString& file : files()) {
        if (!m_event.record->hasArrived(file)) {
            return false;
        }
    }
    for (int i = 0; i < m_event.attachments.numAttachments(); ++i) {
        const zvAttachment& attachment = *m_event.attachments.getAttachment(i);
        if (attachment.getToBeDeleted() &&
            zvDirFileUtils::isAccessible(attachment.getFilePath(), zvDirFileUtils::existence)) {
            return false;
        }
    }
    return true;
}

zvStepOutcome zvTransferStep::showFiles() {
    int count = 0;
    for (const zvString& file : files()) {
        if (!hasArrived(file)) {
            ++count;
            zvConsole::fact("to be sent", zvConsole::printablePath(file) + ", " + sizeText(sizeOf(file)));
        }
    }
    return zvStepOutcome::leftOut("dry run: " + zvConsole::counted(count, "file"));
}

bool zvTransferStep::isRemoteDirectoryInUse() const {
    const zvString name = m_event.argument("EventShadowDir");
    zvFSClient& server = *zvFSClient::getInstance();
    zvStringList entries;
    if (server.exists(name)) {
        server.list(name, entries);
    }
    return entries.numStrings() > 0;
}

// A directory of the event's name that it has not made itself is another event's: of another root on the same
// file server, or of an earlier one in the same second.
void zvTransferStep::makeDirectory() {
    using State = zvEventRecord::RemoteDirectory;
    zvEventRecord& record = *m_event.record;
    if (record.remoteDirectory() == State::own) {
        require(zvFSClientUtil::createShadowDir(*m_event.arguments));
        return;
    }
    const auto refuse = [this] {
        throw zvStepFailure{zvConsole::printable(m_event.argument("EventShadowDir")),
                            "this directory of the file server is not the event's, whose own is " +
                                zvConsole::printablePath(m_event.directory()) +
                                ": run the event anew, or remove that directory"};
    };
    if (record.remoteDirectory() == State::claimed) {
        // It was killed before or after it made the directory; nothing was sent into it.
        if (isRemoteDirectoryInUse()) {
            refuse();
        }
        require(zvFSClientUtil::createShadowDir(*m_event.arguments));
    } else {
        record.setRemoteDirectory(State::claimed);
        record.requireWritten();
        const zvResult made = zvFSClientUtil::createNewShadowDir(*m_event.arguments);
        if (made.getResult() == zvFSClientUtil::directoryExists) {
            record.setRemoteDirectory(State::unknown);
            refuse();
        }
        require(made);
    }
    record.setRemoteDirectory(State::own);
    record.requireWritten();
}

zvStepOutcome zvTransferStep::send(const zvString& configuration) {
    const zvString refusal = zvJavaStart::prepare();
    if (!refusal.empty()) {
        throw zvException(refusal);
    }
    m_event.session.secrets().forEach(
        [](const zvString& name, const zvString& value) { zvFSClient::setSecret(name, value); });
    m_signals.emplace();
    zvSharedConnection::Use connection(m_event.session.fileServer, configuration, *this);
    m_signals.reset();
    makeDirectory();
    const zvResult sent = zvFSClientUtil::uploadEventFiles(*m_event.arguments, m_event.attachments, this);
    require(sent);
    connection.succeed();
    const zvString notRemoved = sent.getAdditionalInformation();
    if (!notRemoved.empty()) {
        // The event may be run again to remove them.
        zvConsole::fact("warning", zvConsole::printable(notRemoved));
    }
    return zvStepOutcome::done(zvConsole::counted(m_sentFiles, "file") + ", " + sizeText(m_sentBytes));
}

void zvTransferStep::require(const zvResult& result) {
    if (!result.isOk()) {
        throw zvException(result);
    }
}

// Asked by the client, for the first time once the Java machine has started, later also by another thread.
bool zvTransferStep::isCancelled() {
    if (m_signals) {
        m_signals.reset();
    }
    return zvProcess::notedSignal() != 0 || m_event.deadline.isOver();
}

bool zvTransferStep::hasArrived(const zvString& local) {
    if (!m_event.record->hasArrived(local)) {
        return false;
    }
    zvConsole::fact("arrived before", zvConsole::printablePath(local));
    m_event.report.addFile({zvConsole::printablePath(local), "arrived before", sizeOf(local), 0});
    return true;
}

void zvTransferStep::fileBegins(const zvString& local) {
    zvInterruption::throwIfRequested();
    m_event.deadline.throwIfOver(zvConsole::printablePath(local));
    m_event.record->beginFile(local);
    m_progress.begin();
    const zvInt64 bytes = sizeOf(local);
    if (bytes >= largeFile) {
        zvConsole::fact("sending", zvConsole::printablePath(local) + ", " + sizeText(bytes));
    }
}

void zvTransferStep::fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) {
    // Or the files that have to be deleted would go, and nobody would know.
    m_event.record->setArrived(local, m_event.attachments.numAttachments() > 0);
    m_event.record->requireWritten();
    ++m_sentFiles;
    m_sentBytes += bytes;
    const std::string path = zvConsole::printablePath(local);
    zvConsole::fact("sent",
                    path + ", " + sizeText(bytes) + ", " +
                        zvConsole::rate(static_cast<double>(bytes), static_cast<double>(milliseconds)));
    m_event.report.addFile({path, "sent", bytes, static_cast<double>(milliseconds)});
}

void zvTransferStep::progress(const zvString& local, zvInt64 bytes, zvInt64 total) {
    m_progress.update(local, bytes, total);
}

void zvTransferStep::notice(const zvString& text) { zvConsole::fact("notice", zvConsole::printable(text)); }
