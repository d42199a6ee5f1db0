#include "zvArgumentsStep.h"

#include <algorithm>
#include <map>
#include <vector>

#include "zvConsole.h"
#include "zvFileServerSecrets.h"
#include "zvNearestName.h"
#include "zvSecrets.h"

namespace {

constexpr const char* requiredArguments[] = {"EventName", "EventTriggeredByUser", "RootShadowDir"};

std::vector<zvString> knownEvents() {
    std::vector<zvString> names;
    for (int event = zvEventMirror; event <= zvEventMirrorFromLK; ++event) {
        names.push_back(zvEventArguments::getStringForEventNameEnum(static_cast<zvEventNameEnum>(event)));
    }
    return names;
}

void warnOfUnknownEvent(const zvString& event) {
    const std::vector<zvString> known = knownEvents();
    if (std::find(known.begin(), known.end(), event) == known.end()) {
        zvConsole::fact("warning", "\"" + zvConsole::printable(event) + "\" is not a known event" +
                                       zvNearestName::suggestion(event, known));
    }
}

// Looks at one argument after the other. No value is told: what has lost its key may be a secret.
class UsabilityCheck {
public:
    explicit UsabilityCheck(const zvSecretStore& secrets) : m_secrets(secrets) {}

    /// What is wrong with the next argument, which has this number; empty if it can be used.
    std::string faultOf(const std::string& argument, int number) {
        const zvString text(argument.c_str());
        if (text.empty()) {
            return argument.empty() ? "it is empty" : "its bytes are no text in the locale's encoding";
        }
        zvString key;
        zvString value;
        if (!zvEventArguments::splitArgument(text, key, value)) {
            return key.empty() ? "it has no key before the \"=\"" : "it has no \"=\" after a key";
        }
        const char* const secret = zvSecrets::keyIn(key);
        const std::string named =
            "its key \"" + (secret == nullptr ? zvConsole::printable(key) : secret) + "\" is ";
        const std::string source = m_secrets.sourceOf(key);
        if (!source.empty()) {
            return named + "one of the secrets in " + source;
        }
        const auto [first, isNew] = m_keys.emplace(key, number);
        return isNew ? "" : named + "that of argument " + std::to_string(first->second) + " already";
    }

private:
    const zvSecretStore& m_secrets;
    std::map<zvString, int> m_keys;  // to the number of the argument that has it
};

}  // namespace

zvStepOutcome zvArgumentsStep::run() {
    const zvSecretStore& secrets = m_event.session.secrets();
    requireUsable(secrets);
    parse(secrets);
    show();
    requireArguments();
    warnOfUnknownEvent(m_event.argument("EventName"));
    return zvStepOutcome::done(zvConsole::counted(m_event.arguments->numEventArguments(), "argument"));
}

void zvArgumentsStep::requireUsable(const zvSecretStore& secrets) const {
    UsabilityCheck check(secrets);
    std::string first;
    std::string reason;
    int number = 0;
    for (const std::string& argument : m_event.commandLine) {
        ++number;
        const std::string fault = check.faultOf(argument, number);
        if (fault.empty()) {
            continue;
        }
        const std::string subject = "argument " + std::to_string(number);
        if (first.empty()) {
            first = subject;
            reason = fault;
        } else {
            reason.append("; ").append(subject).append(": ").append(fault);
        }
    }
    if (!first.empty()) {
        throw zvStepFailure{first, reason};
    }
}

void zvArgumentsStep::parse(const zvSecretStore& secrets) {
    std::string program = "zvgateway";
    std::vector<char*> argv{program.data()};
    argv.reserve(m_event.commandLine.size() + 1);
    for (std::string& argument : m_event.commandLine) {
        argv.push_back(argument.data());
    }
    m_event.arguments.reset(
        zvEventArguments::parseEventArguments(static_cast<int>(argv.size()), argv.data()));
    const std::set<zvString>* const wanted = m_event.secretNames;
    const std::set<zvString> others = secrets.empty() ? std::set<zvString>() : zvFileServerSecrets::names();
    secrets.forEach([&](const zvString& name, const zvString& value) {
        if (wanted == nullptr ? others.count(name) == 0 : wanted->count(name) > 0) {
            m_event.arguments->addEventArgument(name, value);
        }
    });
}

void zvArgumentsStep::show() const {
    m_event.arguments->forEach([](const zvString& key, const zvString& value) {
        zvConsole::fact(zvConsole::printable(zvSecrets::maskedKey(key)),
                        zvConsole::printable(zvSecrets::maskedValue(key, value)));
    });
}

void zvArgumentsStep::requireArguments() const {
    std::vector<std::string> missing;
    for (const char* const key : requiredArguments) {
        if (m_event.argument(key).empty()) {
            missing.emplace_back(key);
        }
    }
    if (!missing.empty()) {
        throw zvStepFailure{zvConsole::joined(missing, ", "), "missing (see zvgateway --help)"};
    }
}
