#include "zvGatewayHomeStep.h"

#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvLogger.h"

namespace {

zvStepFailure failure(const zvString& file, const std::string& reason) {
    return {zvConsole::printablePath(file), reason};
}

// Not by getGatewayHomePath(), which says on standard output that there is none.
zvString homePath() {
    return zvCommonUtils::getEnvironmentalVariable(zvCommonUtils::getGatewayHomeEnvVariable());
}

// A home without a log configuration runs without a log; one with an invalid configuration does not run.
void checkLog() {
    const zvString configuration = zvCommonUtils::getConfigurationFile("log4cxx.xml");
    if (!zvDirFileUtils::isAccessible(configuration, zvDirFileUtils::existence)) {
        zvConsole::fact("log", "off: there is no " + zvConsole::printablePath(configuration));
        return;
    }
    const zvLogger* const logger = zvLogger::getInstance();
    if (logger == nullptr || !logger->isReady()) {
        throw failure(configuration, "the logging library refuses this configuration");
    }
    zvConsole::fact("log", "by " + zvConsole::printablePath(configuration));
}

void checkLocalServer() {
    const zvString configuration = zvCommonUtils::getConfigurationFile("client-config.ini");
    const zvString url = zvCommonUtils::getLocalServerUrl();
    if (url.empty()) {
        const zvString error = zvDirFileUtils::getAccessError(configuration, zvDirFileUtils::readable);
        throw failure(configuration, error.empty() ? "\"local-server-url\" cannot be found in it"
                                                   : zvConsole::printable(error));
    }
    zvConsole::fact("local server", zvConsole::printable(url));
}

}  // namespace

bool zvGatewayHomeStep::isHomeNamed() { return !homePath().empty(); }

zvStepOutcome zvGatewayHomeStep::run() const {
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
    checkLog();
    checkLocalServer();
    return zvStepOutcome::done(zvConsole::printablePath(home));
}
