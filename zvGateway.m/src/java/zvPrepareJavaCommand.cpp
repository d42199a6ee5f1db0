#include "zvPrepareJavaCommand.h"

#include <filesystem>
#include <fstream>

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvException.h"
#include "zvFSClient.h"
#include "zvFileServerConnection.h"
#include "zvJavaMachine.h"
#include "zvJavaStart.h"
#include "zvProcess.h"
#include "zvTemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

// What an event for an FTP server begins with as well.
constexpr const char* ftpClasses[] = {
    "com.vantorel.ep.products.fsclient.FtpTransport", "com.vantorel.ep.products.fsclient.FtpSession",
    "com.vantorel.ep.products.fsclient.SecureFtpClient", "org.apache.commons.net.ftp.FTPClient"};

class Listener : public zvTransferObserver {
    void fileTransferred(const zvString&, zvInt64, zvInt64) override {}
};

std::string urlOf(const fs::path& folder) {
    std::string url = "file://";
    for (const char character : folder.generic_string()) {
        url += character == ' ' ? "%20" : character == '%' ? "%25" : std::string(1, character);
    }
    return url;
}

// What an event does, in a folder of its own.
void takeSampleEvent(const fs::path& folder) {
    fs::create_directory(folder / "server");
    std::ofstream(folder / "fileserver.properties") << "url=" << urlOf(folder / "server") << '\n';
    std::ofstream(folder / "sample.txt") << "a sample of a file\n";
    Listener listener;
    const zvFileServerConnection connection((folder / "fileserver.properties").string().c_str(), listener);
    zvFSClient& client = *zvFSClient::getInstance();
    const zvString local = (folder / "sample.txt").string().c_str();
    zvStringList files;
    files.addString(local);
    client.mkNewDir("event");
    client.removeLeftovers("event", files);
    for (const int mode : {0, 1}) {
        client.setFileType(mode);
        client.put(local, "event/sample.txt");
    }
    client.mkDir("event");
    client.removeLeftovers("", files);
    zvStringList names;
    client.list("event", names);
    for (const char* const name : ftpClasses) {
        zvJavaMachine::findClass(name);
    }
}

}  // namespace

zvExitCode zvPrepareJavaCommand::run() const {
    if (!into.empty()) {
        makeArchive();
        return zvExitCode::success;
    }
    zvConsole::print(zvJavaStart::makeArchive() + '\n');
    return zvExitCode::success;
}

void zvPrepareJavaCommand::makeArchive() const {
    // Nothing of this is an event's, or to be logged.
    zvProcess::setEnvironment(zvCharString(zvCommonUtils::getGatewayHomeEnvVariable()).data(),
                              "no-gateway-home");
    zvJavaStart::prepareArchive(into, javaOptions);
    try {
        const zvTemporaryFolder folder;
        takeSampleEvent(folder.path());
    } catch (const zvException& exception) {
        throw zvProgramFailure{zvExitCode::unexpected, "prepare-java", "",
                               zvConsole::printable(zvFileServerConnection::reasonOf(exception))};
    }
    zvJavaMachine::end();
}
