#include "zvPostStep.h"

#include "zvConsole.h"
#include "zvGatewayHomeStep.h"
#include "zvPostDelivery.h"
#include "zvSecrets.h"

zvStepOutcome zvPostStep::run() {
    const zvString url = zvGatewayHomeStep::localServerUrl();
    zvConsole::fact("to", zvConsole::printable(zvSecrets::maskedUrl(url)));
    if (m_event.record->isPosted()) {
        m_event.wasPostedBefore = true;
        return zvStepOutcome::leftOut("posted before");
    }
    const std::string arguments = zvConsole::counted(m_event.arguments->numEventArguments(), "argument");
    if (m_event.session.options.isDryRun) {
        return zvStepOutcome::leftOut("dry run: " + arguments);
    }
    m_event.record->secureIdentity();
    const std::string delivered = zvPostDelivery(m_event, url).run();
    m_event.record->setPosted();
    m_event.record->requireWritten();
    zvConsole::fact("answered", delivered);
    return zvStepOutcome::done(arguments + ", " + delivered);
}
