#include "zvMapCommand.h"

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvConfigurationReading.h"
#include "zvConsole.h"
#include "zvMappingJson.h"
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

    // The way that is asked for; of an object that is refused there is none.
    std::optional<zvLifecycleWay> wayOf(const zvMappingTrial& trial) const {
        return (fromState.empty() && toState.empty()) || !trial.refusal().empty()
                   ? std::nullopt
                   : std::optional<zvLifecycleWay>(std::in_place, trial.mapping().object(), fromState,
                                                   toState);
    }

    std::optional<zvProgramFailure> failureOf(const zvMappingTrial& trial,
                                              const std::optional<zvLifecycleWay>& way) const {
        const auto failure = [](const std::string& subject, const std::string& reason) {
            return zvProgramFailure{zvExitCode::mapping, "mapping", subject, reason};
        };
        if (!trial.refusal().empty()) {
            return failure(zvConsole::printable(object.type()), trial.refusal());
        }
        if (way && !way->exists()) {
            return failure(zvConsole::printable(fromState) + " -> " + zvConsole::printable(toState),
                           "the object's lifecycle has no such way");
        }
        return std::nullopt;
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
    const std::optional<zvLifecycleWay> way = request.wayOf(trial);
    const std::optional<zvProgramFailure> failure = request.failureOf(trial, way);
    if (asJson) {
        zvConsole::print(zvMappingJson::of(trial, way, explain, failure));
    } else {
        print(trial, way);
    }
    if (failure) {
        throw zvProgramFailure(*failure);
    }
    return zvExitCode::success;
}

void zvMapCommand::print(const zvMappingTrial& trial, const std::optional<zvLifecycleWay>& way) const {
    const zvMappingReport report(trial);
    zvConsole::step("mapping");
    if (explain) {
        zvMappingReport::print(report.candidates());
    }
    if (trial.refusal().empty()) {
        zvMappingReport::print(report.object(explain));
    }
    if (way && way->exists()) {
        zvMappingReport::print(*way);
    }
}
