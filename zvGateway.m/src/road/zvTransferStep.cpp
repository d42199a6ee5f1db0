#include "zvTransferStep.h"

#include <filesystem>
#include <system_error>

#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDeliveredFile.h"
#include "zvDirFileUtils.h"
#include "zvException.h"
#include "zvFSClient.h"
#include "zvFSClientUtil.h"
#include "zvInterruption.h"
#include "zvNativePath.h"
#include "zvProcess.h"
#include "zvStringList.h"

namespace fs = std::filesystem;

namespace {

// From here on a person wants to know what is going on before the file is there.
constexpr zvInt64 largeFile = 16'000'000;

// The delivered Java client, unless the site has one of its own on CLASSPATH.
void offerClient() {
    if (!zvCommonUtils::getEnvironmentalVariable("CLASSPATH").empty()) {
        return;
    }
    const std::string jar = findDeliveredFile("../" ZV_DATA_FOLDER "/zvFileServerClient.jar",
                                              "../zvFileServerClient.j/zvFileServerClient.jar");
    if (!jar.empty()) {
        zvProcess::setEnvironment("CLASSPATH", jar.c_str());
    }
}

// The connection to the file server, as long as it lives.
class Connection {
public:
    explicit Connection(const zvString& configuration) {
        const zvProcess::SignalsUntouched signals;  // by the Java machine, which would end the process
        zvFSClient::getInstance(configuration);
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { zvFSClient::destroyInstance(); }
};

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
    if (m_event.options.isDryRun) {
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
        const zvString message = exception.getMessage();
        throw failure(message.empty() ? exception.getResult().getMessage() : message);
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

// A directory of the event's name that it has not made itself is another event's: of another root on the same
// file server, or of an earlier one in the same second.
void zvTransferStep::makeDirectory() {
    using State = zvEventRecord::RemoteDirectory;
    zvEventRecord& record = *m_event.record;
    if (record.remoteDirectory() == State::own) {
        require(zvFSClientUtil::createShadowDir(*m_event.arguments));
        return;
    }
    const zvString name = m_event.argument("EventShadowDir");
    zvFSClient& server = *zvFSClient::getInstance();
    // A claim without a directory of its own in the record may have been made good all the same; nothing was
    // sent into it then.
    zvStringList entries;
    const bool isThere = server.exists(name);
    if (isThere) {
        server.list(name, entries);
    }
    if (isThere && (record.remoteDirectory() == State::unknown || entries.numStrings() > 0)) {
        throw zvStepFailure{zvConsole::printable(name),
                            "this directory of the file server is not the event's, whose own is " +
                                zvConsole::printablePath(m_event.directory()) +
                                ": run the event anew, or remove that directory"};
    }
    record.setRemoteDirectory(State::claimed);
    record.requireWritten();
    require(zvFSClientUtil::createShadowDir(*m_event.arguments));
    record.setRemoteDirectory(State::own);
    record.requireWritten();
}

zvStepOutcome zvTransferStep::send(const zvString& configuration) {
    offerClient();
    const Connection connection(configuration);
    makeDirectory();
    const zvResult sent = zvFSClientUtil::uploadEventFiles(*m_event.arguments, m_event.attachments, this);
    require(sent);
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
    m_event.record->beginFile(local);
    const zvInt64 bytes = sizeOf(local);
    if (bytes >= largeFile) {
        zvConsole::fact("sending", zvConsole::printablePath(local) + ", " + sizeText(bytes));
    }
}

void zvTransferStep::fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) {
    m_event.record->setArrived(local);
    // Or the files that have to be deleted would go, and nobody would know.
    m_event.record->requireWritten();
    ++m_sentFiles;
    m_sentBytes += bytes;
    const std::string path = zvConsole::printablePath(local);
    zvConsole::fact("sent",
                    path + ", " + sizeText(bytes) + ", " +
                        zvConsole::rate(static_cast<double>(bytes), static_cast<double>(milliseconds)));
    m_event.report.addFile({path, "sent", bytes, static_cast<double>(milliseconds)});
}
