#include "zvRoadRunner.h"

#include "zvEventRoad.h"
#include "zvGatewayHomeStep.h"

void zvRoadRunner::prepare() {
    m_session.keepXmlReady();
    m_session.fileServer.keep();
    zvExitCode code = zvExitCode::usage;
    const char* step = "secrets";
    try {
        m_session.secrets();
        code = zvExitCode::gatewayHome;
        step = "gateway home";
        zvGatewayHomeStep::requireUsable(m_session.options.requiresLog);
    } catch (const zvStepFailure& failure) {
        throw zvProgramFailure{code, step, failure.subject, failure.reason};
    }
}

zvEventOutcome zvRoadRunner::run(std::vector<std::string> arguments, const std::set<zvString>* secretNames) {
    zvEventRoad road(m_session, std::move(arguments), secretNames);
    m_pRunning = &road.outcome();
    try {
        road.run();
    } catch (const zvProgramFailure&) {
        // The outcome has it.
    }
    m_pRunning = nullptr;
    return road.outcome();
}
