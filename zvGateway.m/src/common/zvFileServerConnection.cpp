#include "zvFileServerConnection.h"

#include <string>

#include "zvCommonUtils.h"
#include "zvDeliveredFile.h"
#include "zvDirFileUtils.h"
#include "zvFSClient.h"
#include "zvProcess.h"
#include "zvProcessEnd.h"

namespace {

// A machine that runs for one event starts sooner with these, and one that runs for many does not grow with
// each.
constexpr const char* javaOptions[] = {"-XX:+IgnoreUnrecognizedVMOptions", "-XX:+UseSerialGC",
                                       "-XX:TieredStopAtLevel=1", "-Xmn4m"};

bool isSet(const char* variable) { return !zvCommonUtils::getEnvironmentalVariable(variable).empty(); }

// The delivered Java client, unless the site has one of its own on CLASSPATH. Returns why there is none: Java
// would take classes from the folder that the program was started in, whoever put them there.
zvString offerClient() {
    if (isSet("CLASSPATH")) {
        return {};
    }
    const std::string jar = findDeliveredFile("../" ZV_DATA_FOLDER "/zvFileServerClient.jar",
                                              "../zvFileServerClient.j/zvFileServerClient.jar");
    if (jar.empty()) {
        return "there is no file server client: zvFileServerClient.jar is missing where the program is "
               "installed, "
               "and CLASSPATH names no other one";
    }
    zvProcess::setEnvironment("CLASSPATH", jar.c_str());
    return {};
}

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

zvString zvFileServerConnection::prepareJava() {
    static bool isPrepared = false;
    if (isPrepared) {
        return {};
    }
    zvString refusal = offerClient();
    if (!refusal.empty()) {
        return refusal;
    }
    isPrepared = true;
    zvFSClient::setJavaEndObserver(zvProcessEnd::notify);
    // These variables reach the machine, too, and may contradict.
    if (!isSet("JAVA_TOOL_OPTIONS") && !isSet("_JAVA_OPTIONS")) {
        for (const char* const option : javaOptions) {
            zvFSClient::addJavaOption(option);
        }
    }
    return {};
}

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
