#include "zvFileServerConnection.h"

#include "zvCommonUtils.h"
#include "zvDirFileUtils.h"
#include "zvFSClient.h"

namespace {

// The exception with where Java was looked for, which is in its result's additional information.
zvException detailed(const zvException& exception) {
    const zvString detail = exception.getResult().getAdditionalInformation();
    zvException result(exception);
    if (!detail.empty()) {
        result.setMessage(exception.getMessage() + ". " + detail);
    }
    return result;
}

void close() {
    zvFSClient::destroyInstance();
    zvFSClient::setObserver(nullptr);
}

}  // namespace

zvString zvFileServerConnection::reasonOf(const zvException& exception) {
    constexpr char package[] = "com/vantorel/ep/products/fsclient/";
    const zvString message =
        exception.getMessage().empty() ? exception.getResult().getMessage() : exception.getMessage();
    const bool isMissingClass = message.find(package) == 0 && message.find(" ") == -1;
    return isMissingClass ? "the Java class " + message + " is not on the class path, which is \"" +
                                zvCommonUtils::getEnvironmentalVariable("CLASSPATH") + "\""
                          : message;
}

zvFileServerConnection::zvFileServerConnection(const zvString& configuration, zvTransferObserver& observer) {
    zvFSClient::setObserver(&observer);
    try {
        zvFSClient::getInstance(zvDirFileUtils::nativePath(configuration));
    } catch (const zvException& exception) {
        close();
        throw zvException(detailed(exception));
    }
}

zvFileServerConnection::~zvFileServerConnection() { close(); }
