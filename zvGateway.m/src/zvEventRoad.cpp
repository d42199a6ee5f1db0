#include "zvEventRoad.h"

#include <filesystem>
#include <system_error>

#include "zvAccessFault.h"
#include "zvAttachmentList.h"
#include "zvAttachmentParser.h"
#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvDocumentWatch.h"
#include "zvException.h"
#include "zvGatewayHome.h"
#include "zvLogger.h"
#include "zvMappingStep.h"
#include "zvPlatform.h"
#include "zvSecrets.h"
#include "zvStepFailure.h"

namespace {

constexpr const char* requiredArguments[] = {"EventName", "EventTriggeredByUser", "RootShadowDir"};

constexpr char homeStep[] = "gateway home";
constexpr char shadowStep[] = "shadow directory";
constexpr char attachmentsStep[] = "attachments";

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

zvStepFailure attachmentsFailure(const zvString& file, const std::string& reason) {
    return {zvExitCode::attachments, attachmentsStep, zvConsole::printablePath(file), reason};
}

void requireReadable(const zvString& file) {
    const std::string fault = zvAccessFault(file, zvPlatform::readable);
    if (!fault.empty()) {
        throw attachmentsFailure(file, fault);
    }
}

std::string modeOf(const zvAttachment& attachment) {
    return zvConsole::printable(zvAttachment::getFileTransferModeStr(attachment.getFileTransferMode()));
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

zvEventRoad::zvEventRoad(std::vector<std::string> arguments) : m_commandLine(std::move(arguments)) {}

void zvEventRoad::run() {
    readArguments();
    requireArguments();
    findGatewayHome();
    prepareShadowDirectory();
    const zvString dataFile = inShadowDirectory(argument("DataFileName"));
    zvMappingStep(*m_pArguments, dataFile).run();
    readAttachments();
}

zvString zvEventRoad::argument(const char* key) const { return m_pArguments->getEventArgumentValue(key); }

zvString zvEventRoad::inShadowDirectory(const zvString& name) const {
    return argument("RootShadowDir") + "\\" + argument("EventShadowDir") + "\\" + name;
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
        if (argument(key).empty()) {
            missing += (missing.empty() ? "" : ", ") + std::string(key);
        }
    }
    if (!missing.empty()) {
        throw zvStepFailure{zvExitCode::usage, "arguments", missing, "missing (see zvgateway --help)"};
    }
    const zvString event = argument("EventName");
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
    const std::string fault = zvAccessFault(home, zvPlatform::existence);
    if (!fault.empty()) {
        throw homeFailure(home, fault);
    }
    zvConsole::fact("folder", zvConsole::printablePath(home));
    checkLog(home);
    checkLocalServer(home);
}

void zvEventRoad::prepareShadowDirectory() {
    zvConsole::step(shadowStep);
    const zvString root = argument("RootShadowDir");
    const std::string fault = zvAccessFault(root, zvPlatform::readAndWrite);
    if (!fault.empty()) {
        throw shadowFailure(root, fault);
    }
    const zvResult made = zvEventArguments::populateEventArguments(root, *m_pArguments);
    const std::string reason =
        made.getMessage().empty() ? "it could not be created" : zvConsole::printable(made.getMessage());
    if (!made.isOk()) {
        throw shadowFailure(root, reason);
    }
    zvConsole::fact("directory", zvConsole::printablePath(root + "\\" + argument("EventShadowDir")));
    for (const char* const key : {"DataFileName", "AttachmentsFileName"}) {
        const zvString file = inShadowDirectory(argument(key));
        if (!zvDirFileUtils::isAccessible(file, zvPlatform::existence)) {
            throw shadowFailure(file, reason);
        }
        zvConsole::fact(key, zvConsole::printablePath(file));
    }
}

void zvEventRoad::readAttachments() {
    const zvString source = argument("AttachmentsFile");
    if (source.empty()) {
        return;
    }
    zvConsole::step(attachmentsStep);
    requireReadable(source);
    zvAttachmentList attachments;
    const zvDocumentWatch watch;
    try {
        zvAttachmentParser().parse(&attachments, source, true);
    } catch (const zvException& exception) {
        throw attachmentsFailure(source, zvConsole::printable(exception.getResult().getMessage()));
    }
    if (!watch.complaint().empty()) {
        throw attachmentsFailure(source, watch.complaint());
    }
    for (int i = 0; i < attachments.numAttachments(); ++i) {
        const zvAttachment& attachment = *attachments.getAttachment(i);
        requireReadable(attachment.getFilePath());
        zvConsole::fact(modeOf(attachment), zvConsole::printablePath(attachment.getFilePath()) +
                                                (attachment.getToBeDeleted() ? ", then deleted" : ""));
    }
    if (attachments.empty()) {
        zvConsole::fact("none", "in " + zvConsole::printablePath(source));
    }
    copyIntoShadowDirectory(source);
}

// The event's directory has everything that belongs to the event.
void zvEventRoad::copyIntoShadowDirectory(const zvString& attachmentsFile) const {
    const zvString target = inShadowDirectory(argument("AttachmentsFileName"));
    std::error_code error;
    std::filesystem::copy_file(zvPlatform::nativePath(zvCharString(attachmentsFile).data()),
                               zvPlatform::nativePath(zvCharString(target).data()),
                               std::filesystem::copy_options::overwrite_existing, error);
    if (error) {
        throw attachmentsFailure(target, error.message());
    }
    zvConsole::fact("list", zvConsole::printablePath(target));
}
