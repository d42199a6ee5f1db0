#include "zvArgumentsStep.h"

#include "zvConsole.h"
#include "zvSecrets.h"

namespace {

constexpr const char* requiredArguments[] = {"EventName", "EventTriggeredByUser", "RootShadowDir"};

bool isKnownEvent(const zvString& name) {
    for (int event = zvEventMirror; event <= zvEventMirrorFromLK; ++event) {
        if (zvEventArguments::getStringForEventNameEnum(static_cast<zvEventNameEnum>(event)) == name) {
            return true;
        }
    }
    return false;
}

}  // namespace

zvStepOutcome zvArgumentsStep::run() {
    parse();
    show();
    requireArguments();
    const zvString event = m_event.argument("EventName");
    if (!isKnownEvent(event)) {
        zvConsole::fact("warning", "\"" + zvConsole::printable(event) + "\" is not a known event");
    }
    return zvStepOutcome::done(zvConsole::counted(m_event.arguments->numEventArguments(), "argument"));
}

void zvArgumentsStep::parse() {
    std::string program = "zvgateway";
    std::vector<char*> argv{program.data()};
    argv.reserve(m_event.commandLine.size() + 1);
    for (std::string& argument : m_event.commandLine) {
        argv.push_back(argument.data());
    }
    m_event.arguments.reset(
        zvEventArguments::parseEventArguments(static_cast<int>(argv.size()), argv.data()));
}

void zvArgumentsStep::show() const {
    m_event.arguments->forEach([](const zvString& key, const zvString& value) {
        zvConsole::fact(zvConsole::printable(zvSecrets::maskedKey(key)),
                        zvConsole::printable(zvSecrets::maskedValue(key, value)));
    });
    const std::size_t unused =
        m_event.commandLine.size() - static_cast<std::size_t>(m_event.arguments->numEventArguments());
    if (unused > 0) {
        zvConsole::fact("not used", std::to_string(unused) + " (no \"=\", no key, or a repeated key)");
    }
}

void zvArgumentsStep::requireArguments() const {
    std::string missing;
    for (const char* const key : requiredArguments) {
        if (m_event.argument(key).empty()) {
            missing += (missing.empty() ? "" : ", ") + std::string(key);
        }
    }
    if (!missing.empty()) {
        throw zvStepFailure{missing, "missing (see zvgateway --help)"};
    }
}
