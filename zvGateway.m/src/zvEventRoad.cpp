#include "zvEventRoad.h"

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvLogger.h"
#include "zvPlatform.h"
#include "zvSecrets.h"
#include "zvStepFailure.h"

namespace {

constexpr const char* requiredArguments[] = {"EventName", "EventTriggeredByUser", "RootShadowDir"};

constexpr int existence = 0;
constexpr int readable = 4;
constexpr int readAndWrite = 6;

constexpr char homeStep[] = "gateway home";
constexpr char shadowStep[] = "shadow directory";

unsigned long accessError(const zvString& path, int mode) {
    return zvPlatform::accessError(zvCharString(path).data(), mode);
}

bool isKnownEvent(const zvString& name) {
    for (int event = zvEventMirror; event <= zvEventMirrorFromLK; ++event) {
        if (zvEventArguments::getStringForEventNameEnum(static_cast<zvEventNameEnum>(event)) == name) {
            return true;
        }
    }
    return false;
}

zvStepFailure homeFailure(const zvString& file, const std::string& reason) {
    return {zvExitCode::gatewayHome, homeStep, zvConsole::printablePath(file), reason};
}

zvStepFailure shadowFailure(const zvString& file, const std::string& reason) {
    return {zvExitCode::shadowDirectory, shadowStep, zvConsole::printablePath(file), reason};
}

// A home without a log configuration runs without a log; one whose configuration is of no use does not run.
void checkLog(const zvString& home) {
    const zvString configuration = home + "\\config\\log4cxx.xml";
    if (accessError(configuration, existence) != 0) {
        zvConsole::fact("log", "off: there is no " + zvConsole::printablePath(configuration));
        return;
    }
    const zvLogger* const logger = zvLogger::getInstance();
    if (logger == nullptr || !logger->isReady()) {
        throw homeFailure(configuration, "the logging library refuses this configuration");
    }
    zvConsole::fact("log", "by " + zvConsole::printablePath(configuration));
}

void checkLocalServer(const zvString& home) {
    const zvString configuration = home + "\\config\\client-config.ini";
    const zvString url = zvCommonUtils::getLocalServerUrl();
    if (url.empty()) {
        const unsigned long error = accessError(configuration, readable);
        throw homeFailure(configuration, error != 0 ? zvPlatform::errorText(error)
                                                    : "\"local-server-url\" cannot be found in it");
    }
    zvConsole::fact("local server", zvConsole::printable(url));
}

}  // namespace

zvEventRoad::zvEventRoad(std::vector<std::string> arguments) : m_commandLine(std::move(arguments)) {}

void zvEventRoad::run() {
    readArguments();
    requireArguments();
    findGatewayHome();
    prepareShadowDirectory();
}

void zvEventRoad::readArguments() {
    zvConsole::step("arguments");
    std::string program = "zvgateway";
    std::vector<char*> argv{program.data()};
    argv.reserve(m_commandLine.size() + 1);
    for (std::string& argument : m_commandLine) {
        argv.push_back(argument.data());
    }
    m_pArguments.reset(zvEventArguments::parseEventArguments(static_cast<int>(argv.size()), argv.data()));
    m_pArguments->forEach([](const zvString& key, const zvString& value) {
        zvConsole::fact(zvConsole::printable(key), zvConsole::printable(zvSecrets::maskedValue(key, value)));
    });
    const std::size_t unused =
        m_commandLine.size() - static_cast<std::size_t>(m_pArguments->numEventArguments());
    if (unused > 0) {
        zvConsole::fact("not used", std::to_string(unused) + " (no \"=\", no key, or a key given before)");
    }
}

void zvEventRoad::requireArguments() const {
    std::string missing;
    for (const char* const key : requiredArguments) {
        if (m_pArguments->getEventArgumentValue(key).empty()) {
            missing += (missing.empty() ? "" : ", ") + std::string(key);
        }
    }
    if (!missing.empty()) {
        throw zvStepFailure{zvExitCode::usage, "arguments", missing, "missing (see zvgateway --help)"};
    }
    const zvString event = m_pArguments->getEventArgumentValue("EventName");
    if (!isKnownEvent(event)) {
        zvConsole::fact("warning", "\"" + zvConsole::printable(event) + "\" is none of the known events");
    }
}

void zvEventRoad::findGatewayHome() {
    zvConsole::step(homeStep);
    const zvString variable = zvCommonUtils::getGatewayHomeEnvVariable();
    const zvString home = zvCommonUtils::getEnvironmentalVariable(variable);
    if (home.empty()) {
        throw zvStepFailure{zvExitCode::gatewayHome, homeStep, zvConsole::printable(variable),
                            "the environment variable is not set"};
    }
    const unsigned long error = accessError(home, existence);
    if (error != 0) {
        throw homeFailure(home, zvPlatform::errorText(error));
    }
    zvConsole::fact("folder", zvConsole::printablePath(home));
    checkLog(home);
    checkLocalServer(home);
}

void zvEventRoad::prepareShadowDirectory() {
    zvConsole::step(shadowStep);
    const zvString root = m_pArguments->getEventArgumentValue("RootShadowDir");
    const unsigned long error = accessError(root, readAndWrite);
    if (error != 0) {
        throw shadowFailure(root, zvPlatform::errorText(error));
    }
    if (!zvEventArguments::populateEventArguments(root, *m_pArguments).isOk()) {
        throw shadowFailure(root, zvPlatform::errorText(zvPlatform::lastError()));
    }
    const zvString directory = root + "\\" + m_pArguments->getEventArgumentValue("EventShadowDir");
    zvConsole::fact("directory", zvConsole::printablePath(directory));
    for (const char* const key : {"DataFileName", "AttachmentsFileName"}) {
        const zvString file = directory + "\\" + m_pArguments->getEventArgumentValue(key);
        if (!zvDirFileUtils::isAccessible(file, existence)) {
            throw shadowFailure(file, zvPlatform::errorText(zvPlatform::lastError()));
        }
        zvConsole::fact(key, zvConsole::printablePath(file));
    }
}
