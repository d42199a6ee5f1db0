#include "zvGatewayHomeStep.h"

#include "zvClientConfigFile.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvLogger.h"
#include "zvSecrets.h"

namespace {

zvStepFailure failure(const zvString& file, const std::string& reason) {
    return {zvConsole::printablePath(file), reason};
}

// Not by getGatewayHomePath(), which says on standard output that there is none.
zvString homePath() {
    return zvCommonUtils::getEnvironmentalVariable(zvCommonUtils::getGatewayHomeEnvVariable());
}

// A home without a log configuration runs without a log, and so does one whose log cannot be opened, unless
// the log is required; one with an invalid configuration does not run.
void checkLog(bool requiresLog) {
    const zvString configuration = zvCommonUtils::getConfigurationFile("log4cxx.xml");
    const zvString error = zvDirFileUtils::getAccessError(configuration, zvDirFileUtils::existence);
    if (!error.empty()) {
        if (requiresLog) {
            throw failure(configuration, zvConsole::printable(error));
        }
        zvConsole::fact("log", "off: there is no " + zvConsole::printablePath(configuration));
        return;
    }
    const zvLogger* const logger = zvLogger::getInstance();
    if (logger == nullptr || !logger->isReady()) {
        throw failure(configuration,
                      requiresLog ? "the logging library refuses this configuration, or cannot open its log"
                                  : "the logging library refuses this configuration");
    }
    zvConsole::fact("log", "by " + zvConsole::printablePath(configuration));
}

void checkLocalServer() {
    const zvString configuration = zvCommonUtils::getConfigurationFile("client-config.ini");
    const zvClientConfigFile file = zvClientConfigFile::ofHome();
    if (const zvClientConfigFile::Line* const line = file.firstFaulty()) {
        throw failure(configuration + ":" + zvString(line->number), zvConsole::printable(line->faultText()));
    }
    const zvString url = zvGatewayHomeStep::localServerUrl();
    if (url.empty()) {
        const zvString error = zvDirFileUtils::getAccessError(configuration, zvDirFileUtils::readable);
        throw failure(configuration, error.empty() ? "\"local-server-url\" cannot be found in it"
                                                   : zvConsole::printable(error));
    }
    zvConsole::fact("local server", zvConsole::printable(zvSecrets::maskedUrl(url)));
}

}  // namespace

zvString zvGatewayHomeStep::localServerUrl() {
    zvString url = zvCommonUtils::getLocalServerUrl();
    if (!url.empty() && url[url.size() - 1] == u'\r') {
        url = url.substr(0, url.size() - 1);
    }
    return url;
}

bool zvGatewayHomeStep::isHomeNamed() { return !homePath().empty(); }

zvStepOutcome zvGatewayHomeStep::run() const {
    requireUsable(m_event.session.options.requiresLog);
    m_event.deadline.set(m_event.session.eventTimeout());
    return zvStepOutcome::done(zvConsole::printablePath(homePath()));
}

void zvGatewayHomeStep::requireUsable(bool requiresLog) {
    const zvString home = homePath();
    if (home.empty()) {
        throw zvStepFailure{zvConsole::printable(zvCommonUtils::getGatewayHomeEnvVariable()),
                            "the environment variable is not set"};
    }
    const zvString error = zvDirFileUtils::getAccessError(home, zvDirFileUtils::existence);
    if (!error.empty()) {
        throw failure(home, zvConsole::printable(error));
    }
    zvConsole::fact("folder", zvConsole::printablePath(home));
    checkLog(requiresLog);
    checkLocalServer();
}
