#include "zvFSClient.h"

#include <optional>

#include "zvC2JBridge.h"
#include "zvCharString.h"
#include "zvFSNotices.h"
#include "zvFSSecrets.h"
#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvFSClient");

constexpr char factoryClass[] = "com.vantorel.ep.products.fsclient.FileServerClientFactory";

// A method of the Java client and the name of the operation in messages.
struct Operation {
    const char* name;
    const char* method;
    const char* signature;
};

constexpr Operation getFile{"get", "get", "(Ljava/lang/String;Ljava/lang/String;)V"};
constexpr Operation getListed{"get", "get", "(Ljava/lang/String;Ljava/lang/String;Ljava/util/List;)V"};
constexpr Operation getFiltered{"get", "get", "(Ljava/lang/String;Ljava/lang/String;Ljava/lang/String;)V"};
constexpr Operation putFile{"put", "put", "(Ljava/lang/String;Ljava/lang/String;)V"};
constexpr Operation putListed{"put", "put", "(Ljava/lang/String;Ljava/lang/String;Ljava/util/List;)V"};
constexpr Operation putFiltered{"put", "put", "(Ljava/lang/String;Ljava/lang/String;Ljava/lang/String;)V"};
constexpr Operation makeDirectory{"mkDir", "mkDir", "(Ljava/lang/String;)V"};
constexpr Operation testExistence{"exists", "exists", "(Ljava/lang/String;)Z"};
constexpr Operation listDirectory{"list", "list", "(Ljava/lang/String;)[Ljava/lang/String;"};
constexpr Operation setTransferMode{"setFileType", "setFileTransferMode", "(I)V"};

// The text is in the exception and in its result, since callers read either.
[[noreturn]] void fail(const zvString& text, const zvString& additionalInformation = {}) {
    zvResult result;
    result.setMessage(text);
    result.setAdditionalInformation(additionalInformation);
    zvException exception(result);
    exception.setMessage(text);
    throw zvException(exception);
}

[[noreturn]] void failFatally(const char* text, const zvString& additionalInformation = {}) {
    logger.fatal(text);
    fail(text, additionalInformation);
}

// A client of the site's own may lack these.
constexpr Operation makeNewDirectory{"mkNewDir", "mkNewDir", "(Ljava/lang/String;)Z"};
constexpr Operation removeLeftoverFiles{"removeLeftovers", "removeLeftovers",
                                        "(Ljava/lang/String;Ljava/util/List;)V"};
constexpr Operation writeProbe{"probe", "probe", "()V"};
constexpr Operation findConfigurationFaults{"findFaults", "findFaults",
                                            "(Ljava/lang/String;)[Ljava/lang/String;"};

bool isTrue(const zvJniFrame&, jboolean answer) { return answer == JNI_TRUE; }

}  // namespace

struct zvFSClient::Impl {
    Impl() = default;
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;
    ~Impl() {
        JNIEnv* const environment = bridge == nullptr ? nullptr : bridge->getEnv();
        if (environment != nullptr) {
            environment->DeleteGlobalRef(client);
            environment->DeleteGlobalRef(factory);
        }
    }

    JNIEnv& env() const {
        JNIEnv* const environment = bridge->getEnv();
        if (environment == nullptr) {
            failFatally("Failed to get the JNI Environment");
        }
        return *environment;
    }

    // Runs `action` with a frame of local references and converts a Java exception to a zvException.
    template <typename Action>
    auto run(Action action) const {
        const zvJniFrame frame(env());
        try {
            return action(frame);
        } catch (const zvJavaThrown& thrown) {
            const zvException exception = zvC2JBridge::toException(frame, thrown.exception);
            logger.error("", exception.getResult().getMessage());
            throw zvException(exception);
        }
    }

    // Calls the operation's method on the client and passes its return value, if any, to `receive`.
    template <typename Result, typename Receive, typename... Arguments>
    auto invokeAndReceive(const Operation& operation, Receive receive, const Arguments&... arguments) const {
        if (client == nullptr) {
            const zvString refusal = zvTextBuilder::concat(
                "FSClient is not initialized. Unable to invoke FSClient.", operation.name, "() operation");
            logger.error("", refusal);
            fail(refusal);
        }
        return run([&](const zvJniFrame& frame) {
            jmethodID const method = frame.method(client, operation.method, operation.signature);
            if constexpr (std::is_void_v<Result>) {
                frame.call<void>(client, method, frame.toJava(arguments)...);
            } else {
                return receive(frame, frame.call<Result>(client, method, frame.toJava(arguments)...));
            }
        });
    }
    template <typename... Arguments>
    void invoke(const Operation& operation, const Arguments&... arguments) const {
        invokeAndReceive<void>(operation, nullptr, arguments...);
    }

    void findBridge() {
        bridge = zvC2JBridge::getInstance();
        if (bridge == nullptr) {
            failFatally("Failed to get the C++ to Java bridge instance",
                        zvTextBuilder::concat("The Java virtual machine was looked for in ",
                                              zvC2JBridge::searchedPlaces()));
        }
    }

    void getFactory(const zvJniFrame& frame) {
        logger.info("Getting instance of FileServerClientFactory");
        jobject const instance = frame.callStatic<jobject>(
            factoryClass, "getInstance", "()Lcom/vantorel/ep/products/fsclient/FileServerClientFactory;");
        factory = frame.env().NewGlobalRef(instance);
        logger.info("Got instance of [", describe(frame, factory), "]");
    }

    void createFactory(const zvString& configPath) {
        run([&](const zvJniFrame& frame) {
            getFactory(frame);
            zvFSNotices::receive(frame);
            logger.info("Initializing FileServerClientFactory");
            logger.info("Config file path [", configPath, "]");
            frame.call<void>(factory, "initialize", "(Ljava/lang/String;)V", frame.toJava(configPath));
            logger.info("Successfully initialized FileServerClientFactory");
        });
    }

    void createClient() {
        run([&](const zvJniFrame& frame) {
            logger.info("Creating an instance of FileServerCLient");
            jobject const created = frame.call<jobject>(
                factory, "getFileServerClient", "()Lcom/vantorel/ep/products/fsclient/FileServerClient;");
            client = frame.env().NewGlobalRef(created);
            logger.info("Created instance of FileServerClient[", describe(frame, client), "]");
        });
    }

    // Whether the connected client is one of the site's own that lacks the operation; looked up once.
    bool lacks(const Operation& operation, std::optional<bool>& known) const {
        if (connected && !known.has_value()) {
            known = zvJniFrame(env()).findMethod(client, operation.method, operation.signature) == nullptr;
        }
        return known.value_or(false);
    }

    // The object's toString() for the log; empty if the log is not read or the call fails.
    static zvString describe(const zvJniFrame& frame, jobject object) {
        try {
            return zvLogSink::isReady() && object != nullptr ? frame.describe(object) : zvString();
        } catch (const zvJavaThrown&) {
            return {};
        }
    }

    zvC2JBridge* bridge = nullptr;
    jobject factory = nullptr;
    jobject client = nullptr;
    bool connected = false;
    std::optional<bool> lacksNewDirectory;
    std::optional<bool> lacksLeftovers;
    std::optional<bool> lacksProbe;
};

zvFSClient* zvFSClient::m_pFSClient = nullptr;

zvFSClient::zvFSClient() : m_pImpl(std::make_unique<Impl>()) {}

zvFSClient::~zvFSClient() = default;

zvFSClient* zvFSClient::getInstance(const zvString& configPath) {
    logger.info("Inside zvFSClient::getInstance");
    if (m_pFSClient == nullptr) {
        m_pFSClient = new zvFSClient;
        logger.info("Calling zvFSClient::initialize");
        m_pFSClient->initialize(configPath);
    }
    logger.info("Finished zvFSClient::getInstance");
    return m_pFSClient;
}

zvFSClient* zvFSClient::getInstance() { return m_pFSClient; }

void zvFSClient::addJavaOption(const zvString& option) {
    zvC2JBridge::addOption(zvCharString(option).data());
}

void zvFSClient::setJavaEndObserver(void (*observer)()) { zvC2JBridge::setEndObserver(observer); }

void zvFSClient::setSecret(const zvString& name, const zvString& value) { zvFSSecrets::set(name, value); }

void zvFSClient::setObserver(zvTransferObserver* observer) { zvFSNotices::setObserver(observer); }

bool zvFSClient::findFaults(const zvString& configPath, zvStringList& faults) {
    Impl impl;
    impl.findBridge();
    const zvFSSecrets secrets(impl.env());
    return impl.run([&](const zvJniFrame& frame) {
        impl.getFactory(frame);
        jmethodID const method =
            frame.findMethod(impl.factory, findConfigurationFaults.method, findConfigurationFaults.signature);
        if (method != nullptr) {
            frame.appendTexts(frame.call<jobjectArray>(impl.factory, method, frame.toJava(configPath)),
                              faults);
        }
        return method != nullptr;
    });
}

void zvFSClient::destroyInstance() {
    if (m_pFSClient == nullptr) {
        return;
    }
    try {
        m_pFSClient->disconnect();
    } catch (const zvException&) {
        // Logged already; the instance is deleted in any case.
    }
    delete m_pFSClient;
    m_pFSClient = nullptr;
}

void zvFSClient::initialize(const zvString& configPath) {
    logger.info("Initializing FSClient started");
    m_pImpl->findBridge();
    const zvFSSecrets secrets(m_pImpl->env());
    m_pImpl->createFactory(configPath);
    m_pImpl->createClient();
    connect();
    logger.info("Initializing FSClient finished");
}

void zvFSClient::connect() {
    logger.info("Connecting to the FileServer");
    m_pImpl->run([&](const zvJniFrame& frame) { frame.call<void>(m_pImpl->client, "connect", "()V"); });
    m_pImpl->connected = true;
    logger.info("Successfully connected to the FileServer");
}

void zvFSClient::disconnect() {
    if (m_pImpl->connected) {
        logger.info("Disconnecting to the FileServer");
        m_pImpl->connected = false;
        m_pImpl->run(
            [&](const zvJniFrame& frame) { frame.call<void>(m_pImpl->client, "disconnect", "()V"); });
        logger.info("Successfully disconnected from the FileServer");
    }
}

void zvFSClient::get(const zvString& remote, const zvString& local) {
    logger.info("Downloading remote file [", remote, "] to local file [", local, "]");
    m_pImpl->invoke(getFile, remote, local);
    logger.info("Successfully downloaded file [", local, "]");
}

void zvFSClient::get(const zvString& remoteDir, const zvString& localDir, const zvStringList* files) {
    logger.info("Downloading files specified in the list");
    m_pImpl->invoke(getListed, remoteDir, localDir, files);
    logger.info("Successfully downloaded file(s) specified in the list");
}

void zvFSClient::get(const zvString& remoteDir, const zvString& localDir, const zvString& filter) {
    logger.info("Downloading files specified by the filter [", filter, "]");
    m_pImpl->invoke(getFiltered, remoteDir, localDir, filter);
    logger.info("Successfully downloaded file(s) specified by the filter");
}

void zvFSClient::put(const zvString& local, const zvString& remote) {
    logger.info("Uploading local file [", local, "] to remote file [", remote, "]");
    m_pImpl->invoke(putFile, local, remote);
    logger.info("Successfully uploaded file to [", remote, "]");
}

void zvFSClient::put(const zvString& localDir, const zvString& remoteDir, const zvStringList* files) {
    logger.info("Uploading files specified in the list");
    m_pImpl->invoke(putListed, localDir, remoteDir, files);
    logger.info("Successfully uploaded file(s) specified in the list");
}

void zvFSClient::put(const zvString& localDir, const zvString& remoteDir, const zvString& filter) {
    logger.info("Uploading files specified by the filter [", filter, "]");
    m_pImpl->invoke(putFiltered, localDir, remoteDir, filter);
    logger.info("Successfully uploaded file(s) specified by the filter");
}

void zvFSClient::mkDir(const zvString& dir) {
    logger.info("Creating directory [", dir, "] on FileServer");
    m_pImpl->invoke(makeDirectory, dir);
    logger.info("Successfully created directory [", dir, "]");
}

bool zvFSClient::mkNewDir(const zvString& dir) {
    if (m_pImpl->lacks(makeNewDirectory, m_pImpl->lacksNewDirectory)) {
        const bool isNew = !exists(dir);
        if (isNew) {
            mkDir(dir);
        }
        return isNew;
    }
    logger.info("Creating new directory [", dir, "] on FileServer");
    const bool created = m_pImpl->invokeAndReceive<jboolean>(makeNewDirectory, isTrue, dir);
    logger.info(created ? "Successfully created new directory [" : "There is already a directory [", dir,
                "]");
    return created;
}

void zvFSClient::removeLeftovers(const zvString& dir, const zvStringList& localFiles) {
    if (m_pImpl->lacks(removeLeftoverFiles, m_pImpl->lacksLeftovers)) {
        return;
    }
    logger.info("Removing incomplete files in FileServer directory [", dir, "]");
    m_pImpl->invoke(removeLeftoverFiles, dir, &localFiles);
    logger.info("Successfully removed incomplete files in FileServer directory");
}

bool zvFSClient::probe() {
    if (m_pImpl->lacks(writeProbe, m_pImpl->lacksProbe)) {
        return false;
    }
    logger.info("Writing and removing a probe in the root of FileServer");
    m_pImpl->invoke(writeProbe);
    logger.info("Successfully wrote and removed a probe");
    return true;
}

bool zvFSClient::exists(const zvString& path) {
    logger.info("Checking if file [", path, "] exists on FileServer");
    const bool found = m_pImpl->invokeAndReceive<jboolean>(testExistence, isTrue, path);
    logger.info("File [", path, found ? "] exists on FileServer" : "] does not exists on FileServer");
    return found;
}

void zvFSClient::list(const zvString& dir, zvStringList& out) {
    logger.info("Getting list of files in FileServer directory [", dir, "]");
    m_pImpl->invokeAndReceive<jobjectArray>(
        listDirectory, [&](const zvJniFrame& frame, jobjectArray names) { frame.appendTexts(names, out); },
        dir);
    logger.info("Successfully got the list of files in FileServer directory");
}

void zvFSClient::setFileType(int mode) {
    logger.info("Inside zvFSClient::setFileType Type:[", mode, "]");
    m_pImpl->invoke(setTransferMode, mode);
    logger.info("Finished zvFSClient::setFileType Type");
}
