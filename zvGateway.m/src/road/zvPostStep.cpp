#include "zvPostStep.h"

#include <algorithm>
#include <memory>

#include "zvCommunicationFactory.h"
#include "zvConsole.h"
#include "zvGatewayHomeStep.h"

namespace {

// The beginning of a server's answer, which is what a person wants to see of it.
class Answer {
public:
    WriteMemoryCallbackWrapper* sink() { return &m_sink; }
    std::string text() const {
        const std::size_t end = m_beginning.find_last_not_of(" \t\r\n");
        return zvConsole::printable(m_beginning.substr(0, end + 1).c_str());
    }

private:
    static constexpr std::size_t maxBytes = 200;

    static std::size_t take(char* data, std::size_t size, std::size_t count, void* sink) {
        std::string& beginning =
            *static_cast<std::string*>(static_cast<WriteMemoryCallbackWrapper*>(sink)->m_pUserData);
        beginning.append(data, std::min(size * count, maxBytes - beginning.size()));
        return size * count;
    }

    std::string m_beginning;
    WriteMemoryCallbackWrapper m_sink{take, &m_beginning};
};

}  // namespace

zvStepOutcome zvPostStep::run() {
    const zvString url = zvGatewayHomeStep::localServerUrl();
    const std::string to = zvConsole::printable(url);
    zvConsole::fact("to", to);
    if (m_event.record->isPosted()) {
        return zvStepOutcome::leftOut("posted before");
    }
    const std::string arguments = zvConsole::counted(m_event.arguments->numEventArguments(), "argument");
    if (m_event.options.isDryRun) {
        return zvStepOutcome::leftOut("dry run: " + arguments);
    }
    Answer answer;
    const std::unique_ptr<zvCommunicationUtils> server(
        zvCommunicationFactory::createCommunicationUtils(zvCommProtocoalHTTP));
    const zvResult posted = server->request(url, *m_event.arguments, answer.sink());
    const std::string text = answer.text();
    if (!text.empty()) {
        zvConsole::fact("answer", text);
        m_event.report.setFact("answer", "", text);
    }
    if (!posted.isOk()) {
        throw zvStepFailure{to, zvConsole::printable(posted.getMessage())};
    }
    m_event.record->setPosted();
    m_event.record->requireWritten();
    const std::string status = "HTTP status " + zvConsole::printable(posted.getAdditionalInformation());
    zvConsole::fact("answered", status);
    return zvStepOutcome::done(arguments + ", " + status);
}
