#include "zvEventRoad.h"

#include "zvAccessFault.h"
#include "zvAttachmentsStep.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvGatewayHome.h"
#include "zvLogger.h"
#include "zvMappingStep.h"
#include "zvPostStep.h"
#include "zvSecrets.h"
#include "zvShadowDirectoryStep.h"
#include "zvTransferStep.h"

namespace {

constexpr const char* requiredArguments[] = {"EventName", "EventTriggeredByUser", "RootShadowDir"};

constexpr char homeStep[] = "gateway home";

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

zvString homePath() {
    return zvCommonUtils::getEnvironmentalVariable(zvCommonUtils::getGatewayHomeEnvVariable());
}

// A home without a log configuration runs without a log; one whose configuration is of no use does not run.
void checkLog(const zvString& home) {
    const zvString configuration = zvGatewayHome::configFile(home, "log4cxx.xml");
    if (!zvAccessFault(configuration, zvPlatform::existence).empty()) {
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
    const zvString configuration = zvGatewayHome::configFile(home, "client-config.ini");
    const zvString url = zvCommonUtils::getLocalServerUrl();
    if (url.empty()) {
        const std::string fault = zvAccessFault(configuration, zvPlatform::readable);
        throw homeFailure(configuration,
                          fault.empty() ? "\"local-server-url\" cannot be found in it" : fault);
    }
    zvConsole::fact("local server", zvConsole::printable(url));
}

}  // namespace

void zvEventRoad::run() {
    if (asJson) {
        zvConsole::leaveStandardOutput();
    }
    try {
        walk();
    } catch (const zvStepFailure& failure) {
        summarize(failure.exitCode);
        throw;
    } catch (...) {
        summarize(zvExitCode::unexpected);
        throw;
    }
    summarize(zvExitCode::success);
}

void zvEventRoad::walk() {
    m_event.isDryRun = isDryRun;
    if (homePath().empty()) {
        // The library, when it is asked first, says so on standard output, in the middle of everything else.
        m_report.take(homeStep, [this] { return findGatewayHome(); });
    }
    m_report.take("arguments", [this] { return readArguments(); });
    m_report.take(homeStep, [this] { return findGatewayHome(); });
    m_report.take("shadow directory", [this] { return zvShadowDirectoryStep(m_event).run(); });
    const zvMappingStep mapping(m_event);
    m_report.take("configuration", [&] { return mapping.readConfiguration(); });
    m_report.take("mapping", [&] { return mapping.mapObject(); });
    m_report.take("attachments", [this] { return zvAttachmentsStep(m_event).run(); });
    m_report.take("file transfer", [this] { return zvTransferStep(m_event, m_report).run(); });
    m_report.take("post", [this] { return zvPostStep(m_event, m_report).run(); });
}

void zvEventRoad::summarize(zvExitCode exitCode) {
    if (m_event.progress != nullptr) {
        const std::string name = zvConsole::printable(m_event.argument("EventShadowDir"));
        m_report.setFact("eventShadowDir", "", name);
        m_report.setFact("directory", "directory", zvConsole::printablePath(m_event.directory()));
        m_report.setFact("dataFile", "data file", zvConsole::printablePath(m_event.dataFile()));
        m_report.setFact("attachmentsFile", "attachments file",
                         zvConsole::printablePath(m_event.attachmentsFile()));
        if (exitCode != zvExitCode::success || isDryRun) {
            m_report.setFact("", "to go on", "the same arguments and EventShadowDir=" + name);
        }
    }
    m_report.print();
    if (asJson) {
        m_report.printJson(exitCode);
    }
}

zvStepOutcome zvEventRoad::readArguments() {
    zvConsole::step("arguments");
    std::string program = "zvgateway";
    std::vector<char*> argv{program.data()};
    argv.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) {
        argv.push_back(argument.data());
    }
    m_event.arguments.reset(
        zvEventArguments::parseEventArguments(static_cast<int>(argv.size()), argv.data()));
    m_event.arguments->forEach([](const zvString& key, const zvString& value) {
        zvConsole::fact(zvConsole::printable(key), zvConsole::printable(zvSecrets::maskedValue(key, value)));
    });
    const std::size_t unused =
        arguments.size() - static_cast<std::size_t>(m_event.arguments->numEventArguments());
    if (unused > 0) {
        zvConsole::fact("not used", std::to_string(unused) + " (no \"=\", no key, or a key given before)");
    }
    requireArguments();
    return zvStepOutcome::done(zvConsole::counted(m_event.arguments->numEventArguments(), "argument"));
}

void zvEventRoad::requireArguments() const {
    std::string missing;
    for (const char* const key : requiredArguments) {
        if (m_event.argument(key).empty()) {
            missing += (missing.empty() ? "" : ", ") + std::string(key);
        }
    }
    if (!missing.empty()) {
        throw zvStepFailure{zvExitCode::usage, "arguments", missing, "missing (see zvgateway --help)"};
    }
    const zvString event = m_event.argument("EventName");
    if (!isKnownEvent(event)) {
        zvConsole::fact("warning", "\"" + zvConsole::printable(event) + "\" is none of the known events");
    }
}

zvStepOutcome zvEventRoad::findGatewayHome() {
    zvConsole::step(homeStep);
    const zvString home = homePath();
    if (home.empty()) {
        throw zvStepFailure{zvExitCode::gatewayHome, homeStep,
                            zvConsole::printable(zvCommonUtils::getGatewayHomeEnvVariable()),
                            "the environment variable is not set"};
    }
    const std::string fault = zvAccessFault(home, zvPlatform::existence);
    if (!fault.empty()) {
        throw homeFailure(home, fault);
    }
    zvConsole::fact("folder", zvConsole::printablePath(home));
    checkLog(home);
    checkLocalServer(home);
    return zvStepOutcome::done(zvConsole::printablePath(home));
}
