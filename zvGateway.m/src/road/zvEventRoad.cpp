#include "zvEventRoad.h"

#include "zvArgumentsStep.h"
#include "zvAttachmentsStep.h"
#include "zvConfigurationStep.h"
#include "zvConsole.h"
#include "zvEventId.h"
#include "zvGatewayHomeStep.h"
#include "zvInterruption.h"
#include "zvMappingStep.h"
#include "zvPostStep.h"
#include "zvShadowDirectoryStep.h"
#include "zvTransferStep.h"

struct zvEventRoad::Step {
    const char* name;
    zvExitCode exitCode;  // when it fails
    zvStepOutcome (*run)(zvGatewayEvent& event);
};

namespace {

template <class Step>
zvStepOutcome run(zvGatewayEvent& event) {
    return Step(event).run();
}

}  // namespace

constexpr zvEventRoad::Step zvEventRoad::steps[] = {
    {"arguments", zvExitCode::usage, ::run<zvArgumentsStep>},
    {"gateway home", zvExitCode::gatewayHome, ::run<zvGatewayHomeStep>},
    {"shadow directory", zvExitCode::shadowDirectory, ::run<zvShadowDirectoryStep>},
    {"configuration", zvExitCode::configuration, ::run<zvConfigurationStep>},
    {"mapping", zvExitCode::mapping, ::run<zvMappingStep>},
    {"attachments", zvExitCode::attachments, ::run<zvAttachmentsStep>},
    {"file transfer", zvExitCode::fileTransfer, ::run<zvTransferStep>},
    {"post", zvExitCode::post, ::run<zvPostStep>},
};

void zvEventRoad::run() {
    m_event.options = options;
    m_event.commandLine = std::move(arguments);
    m_event.eventId = eventIdOf(m_event.commandLine);
    m_event.logContext.setEventId(m_event.eventId);
    try {
        walk();
    } catch (const zvProgramFailure& failure) {
        end(&failure);
        throw;
    }
    end(nullptr);
}

void zvEventRoad::walk() {
    if (!zvGatewayHomeStep::isHomeNamed()) {
        // The library would say so on standard output, in the middle of everything else, when it logs.
        take(steps[1]);
    }
    for (const Step& step : steps) {
        take(step);
    }
}

void zvEventRoad::take(const Step& step) {
    zvConsole::step(step.name);
    m_event.report.take(step.name, step.exitCode, [&] {
        zvInterruption::throwIfRequested();
        return step.run(m_event);
    });
    recordOutcomes();
}

// There is a record from the third step on, which then gets the outcomes of the first two as well.
void zvEventRoad::recordOutcomes() {
    const std::vector<zvRoadReport::Step>& taken = m_event.report.steps();
    for (; m_event.record != nullptr && m_recorded < taken.size(); ++m_recorded) {
        const zvRoadReport::Step& step = taken[m_recorded];
        m_event.record->setOutcome(step.name, step.outcome, step.detail);
    }
}

void zvEventRoad::end(const zvProgramFailure* failure) {
    if (m_event.record != nullptr) {
        recordOutcomes();
        m_event.record->endAttempt(failure);
    }
    summarize(failure == nullptr ? zvExitCode::success : failure->exitCode);
}

void zvEventRoad::summarize(zvExitCode exitCode) {
    zvRoadReport& report = m_event.report;
    if (m_event.record != nullptr) {
        report.setFact("eventId", "event", zvConsole::printable(m_event.record->eventId()));
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
