#include "zvEventRoad.h"

#include "zvArgumentsStep.h"
#include "zvAttachmentsStep.h"
#include "zvConfigurationStep.h"
#include "zvConsole.h"
#include "zvGatewayHomeStep.h"
#include "zvMappingStep.h"
#include "zvPostStep.h"
#include "zvShadowDirectoryStep.h"
#include "zvTransferStep.h"

namespace {

struct Step {
    const char* name;
    zvExitCode exitCode;  // when it fails
    zvStepOutcome (*run)(zvGatewayEvent& event);
};

template <class AStep>
zvStepOutcome run(zvGatewayEvent& event) {
    return AStep(event).run();
}

constexpr Step gatewayHome = {"gateway home", zvExitCode::gatewayHome, run<zvGatewayHomeStep>};

constexpr Step steps[] = {
    {"arguments", zvExitCode::usage, run<zvArgumentsStep>},
    gatewayHome,
    {"shadow directory", zvExitCode::shadowDirectory, run<zvShadowDirectoryStep>},
    {"configuration", zvExitCode::configuration, run<zvConfigurationStep>},
    {"mapping", zvExitCode::mapping, run<zvMappingStep>},
    {"attachments", zvExitCode::attachments, run<zvAttachmentsStep>},
    {"file transfer", zvExitCode::fileTransfer, run<zvTransferStep>},
    {"post", zvExitCode::post, run<zvPostStep>},
};

void take(const Step& step, zvGatewayEvent& event) {
    zvConsole::step(step.name);
    event.report.take(step.name, step.exitCode, [&] { return step.run(event); });
}

}  // namespace

void zvEventRoad::run() {
    if (options.asJson) {
        zvConsole::leaveStandardOutput();
    }
    try {
        walk();
    } catch (const zvProgramFailure& failure) {
        summarize(failure.exitCode);
        throw;
    }
    summarize(zvExitCode::success);
}

void zvEventRoad::walk() {
    m_event.options = options;
    m_event.commandLine = std::move(arguments);
    if (!zvGatewayHomeStep::isHomeNamed()) {
        // The library would say so on standard output, in the middle of everything else, when it logs.
        take(gatewayHome, m_event);
    }
    for (const Step& step : steps) {
        take(step, m_event);
    }
}

void zvEventRoad::summarize(zvExitCode exitCode) {
    zvRoadReport& report = m_event.report;
    if (m_event.progress != nullptr) {
        const std::string name = zvConsole::printable(m_event.argument("EventShadowDir"));
        report.setFact("eventShadowDir", "", name);
        report.setFact("directory", "directory", zvConsole::printablePath(m_event.directory()));
        report.setFact("dataFile", "data file", zvConsole::printablePath(m_event.dataFile()));
        report.setFact("attachmentsFile", "attachments file",
                       zvConsole::printablePath(m_event.attachmentsFile()));
        if (exitCode != zvExitCode::success || options.isDryRun) {
            report.setFact("", "to go on", "the same arguments and EventShadowDir=" + name);
        }
    }
    report.print();
    if (options.asJson) {
        report.printJson(exitCode);
    }
}
