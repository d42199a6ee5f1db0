#include "zvEventRoad.h"

#include "zvArgumentsStep.h"
#include "zvAttachmentsStep.h"
#include "zvConfigurationStep.h"
#include "zvConsole.h"
#include "zvEventId.h"
#include "zvGatewayHomeStep.h"
#include "zvInterruption.h"
#include "zvJavaStart.h"
#include "zvMappingStep.h"
#include "zvPostStep.h"
#include "zvProcessEnd.h"
#include "zvProgramLog.h"
#include "zvSecrets.h"
#include "zvShadowDirectoryStep.h"
#include "zvShownArguments.h"
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

zvEventRoad::zvEventRoad(zvRoadSession& session, std::vector<std::string> arguments,
                         const std::set<zvString>* secretNames)
    : m_event(session) {
    m_event.commandLine = std::move(arguments);
    m_event.secretNames = secretNames;
}

void zvEventRoad::run() {
    zvShownArguments::setEvent(m_event.commandLine);
    m_event.eventId = eventIdOf(m_event.commandLine);
    m_event.logContext.setEventId(m_event.eventId);
    const zvProcessEnd unexpected([this] { return endWithProcess(); });
    try {
        walk();
    } catch (const zvProgramFailure& failure) {
        end(&failure);
        throw;
    }
    end(nullptr);
}

// Called within a step, by a library that ends the process.
zvExitCode zvEventRoad::endWithProcess() {
    const zvProgramFailure failure = m_event.report.stop("Java", zvJavaStart::endReason);
    end(&failure);
    return failure.exitCode;
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
        m_event.deadline.throwIfOver("event-timeout");
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
    conclude(failure);
    summarize(failure == nullptr ? zvExitCode::success : failure->exitCode);
}

void zvEventRoad::conclude(const zvProgramFailure* failure) {
    using Kind = zvEventOutcome::Kind;
    m_outcome.kind = m_event.session.options.isDryRun ? Kind::tried
                     : m_event.wasPostedBefore        ? Kind::arrivedBefore
                                                      : Kind::arrived;
    if (failure != nullptr) {
        m_outcome.setFailure(*failure);
    }
    if (m_event.arguments != nullptr) {
        const auto shown = [this](const char* key) {
            return zvConsole::printable(zvSecrets::maskedValue(key, m_event.argument(key)));
        };
        m_outcome.event = shown("EventName");
        m_outcome.object = shown(m_event.argument("LocalType").empty() ? "RemoteType" : "LocalType");
    }
    if (m_event.record != nullptr) {
        m_outcome.eventId = zvConsole::printable(m_event.record->eventId());
        m_outcome.directory = zvConsole::printablePath(m_event.directory());
        const std::string object = m_event.record->object();
        m_outcome.object = object.empty() ? m_outcome.object : object;
    }
    m_outcome.milliseconds = m_event.report.milliseconds();
    if (m_event.arguments != nullptr) {
        zvProgramLog::write(failure == nullptr ? zvLogLevel::info : zvLogLevel::error, m_outcome.text(),
                            "zvGateway.m/src/zvEventRoad", __LINE__);
    }
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
        if (exitCode != zvExitCode::success || m_event.session.options.isDryRun) {
            report.setFact("", "to go on", "the same arguments and EventShadowDir=" + name);
        }
    }
    report.print();
    if (m_event.session.options.asJson) {
        report.printJson(exitCode);
    }
}
