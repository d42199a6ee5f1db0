#include "zvMapCommand.h"

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvConfigurationReading.h"
#include "zvConsole.h"
#include "zvMappingReport.h"
#include "zvObjectAttribute.h"

namespace {

zvProgramFailure argumentFailure(const std::string& argument, const std::string& reason) {
    return {zvExitCode::usage, "arguments", zvConsole::printable(zvSecrets::maskedArgument(argument.c_str())),
            reason};
}

// The arguments of an event that are about its object.
struct Request {
    zvIncomingObject object;
    zvString fromState;
    zvString toState;
    zvString configuration;

    void take(const std::string& argument) {
        const std::size_t separator = argument.find('=');
        if (separator == std::string::npos || separator == 0) {
            throw argumentFailure(argument, "it is not of the form key=value");
        }
        const std::string key = argument.substr(0, separator);
        const zvString value = argument.c_str() + separator + 1;
        const std::string prefix = zvObjectAttribute::argumentPrefix;
        if (key.rfind(prefix, 0) == 0) {
            if (!object.values.emplace(key.c_str() + prefix.size(), value).second) {
                throw argumentFailure(argument, "the attribute is given twice");
            }
            return;
        }
        zvString* const place = key == "LocalType"    ? &object.localType
                                : key == "RemoteType" ? &object.remoteType
                                : key == "FromState"  ? &fromState
                                : key == "ToState"    ? &toState
                                : key == "ConfigFile" ? &configuration
                                                      : nullptr;
        if (place != nullptr) {
            *place = value;
        }
    }
};

std::string configurationOf(const Request& request) {
    const zvString file = request.configuration.empty()
                              ? zvCommonUtils::getConfigurationFile("customization-config.xml")
                              : request.configuration;
    return zvCharString(file).data();
}

}  // namespace

zvExitCode zvMapCommand::run() const {
    Request request;
    for (const std::string& argument : arguments) {
        request.take(argument);
    }
    if (request.object.type().empty()) {
        throw zvProgramFailure{zvExitCode::usage, "arguments", "LocalType", "it or RemoteType is needed"};
    }
    zvConfigurationReading(configurationOf(request), zvConfigurationReading::InvalidRule::endsTheParse)
        .requireComplete();
    const zvMappingTrial trial(request.object);
    const zvMappingReport report(trial);
    zvConsole::step("mapping");
    if (explain) {
        zvMappingReport::print(report.candidates());
    }
    if (!trial.refusal().empty()) {
        throw zvProgramFailure{zvExitCode::mapping, "mapping", zvConsole::printable(request.object.type()),
                               trial.refusal()};
    }
    zvMappingReport::print(report.object(explain));
    if ((!request.fromState.empty() || !request.toState.empty()) &&
        !zvMappingReport::printWay(trial.mapping().object(), request.fromState, request.toState)) {
        throw zvProgramFailure{
            zvExitCode::mapping, "mapping",
            zvConsole::printable(request.fromState) + " -> " + zvConsole::printable(request.toState),
            "the object's lifecycle has no such way"};
    }
    return zvExitCode::success;
}
