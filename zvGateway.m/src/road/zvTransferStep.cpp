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
#include "zvNativePath.h"
#include "zvProcess.h"

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

// The connection to the file server, as long as it lives, with its observer.
class Connection {
public:
    Connection(const zvString& configuration, zvTransferObserver& observer) {
        zvFSClient::setObserver(&observer);
        try {
            zvFSClient::getInstance(configuration);
        } catch (const zvException&) {
            close();
            throw;
        }
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    ~Connection() { close(); }

private:
    static void close() {
        zvFSClient::destroyInstance();
        zvFSClient::setObserver(nullptr);
    }
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
    if (m_event.progress->isTransferred()) {
        return zvStepOutcome::leftOut("done before");
    }
    if (m_event.isDryRun) {
        return showFiles();
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

zvStepOutcome zvTransferStep::showFiles() {
    int count = 0;
    const auto show = [&](const zvString& file) {
        if (!hasArrived(file)) {
            ++count;
            zvConsole::fact("to be sent", zvConsole::printablePath(file) + ", " + sizeText(sizeOf(file)));
        }
    };
    show(m_event.dataFile());
    show(m_event.attachmentsFile());
    for (int i = 0; i < m_event.attachments.numAttachments(); ++i) {
        show(m_event.attachments.getAttachment(i)->getFilePath());
    }
    return zvStepOutcome::leftOut("dry run: " + zvConsole::counted(count, "file"));
}

zvStepOutcome zvTransferStep::send(const zvString& configuration) {
    offerClient();
    const Connection connection(configuration, *this);
    require(zvFSClientUtil::createShadowDir(*m_event.arguments));
    const zvResult sent = zvFSClientUtil::uploadEventFiles(*m_event.arguments, m_event.attachments, this);
    require(sent);
    const zvString notRemoved = sent.getAdditionalInformation();
    if (notRemoved.empty()) {
        m_event.progress->setTransferred();
        m_event.progress->requireWritten();
    } else {
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
    if (!m_event.progress->hasArrived(local)) {
        return false;
    }
    zvConsole::fact("arrived before", zvConsole::printablePath(local));
    m_event.report.addFile({zvConsole::printablePath(local), "arrived before", sizeOf(local), 0});
    return true;
}

void zvTransferStep::fileBegins(const zvString& local) {
    m_event.progress->begin(local);
    const zvInt64 bytes = sizeOf(local);
    if (bytes >= largeFile) {
        zvConsole::fact("sending", zvConsole::printablePath(local) + ", " + sizeText(bytes));
    }
}

void zvTransferStep::fileTransferred(const zvString& local, zvInt64 bytes, zvInt64 milliseconds) {
    m_event.progress->setArrived(local);
    // Or the files that have to be deleted would go, and nobody would know.
    m_event.progress->requireWritten();
    ++m_sentFiles;
    m_sentBytes += bytes;
    const std::string path = zvConsole::printablePath(local);
    zvConsole::fact("sent",
                    path + ", " + sizeText(bytes) + ", " +
                        zvConsole::rate(static_cast<double>(bytes), static_cast<double>(milliseconds)));
    m_event.report.addFile({path, "sent", bytes, static_cast<double>(milliseconds)});
}

void zvTransferStep::notice(const zvString& text) { zvConsole::fact("notice", zvConsole::printable(text)); }
