#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "zvCharString.h"
#include "zvConsole.h"
#include "zvEventRoad.h"
#include "zvException.h"
#include "zvPlatform.h"
#include "zvSecrets.h"
#include "zvStepFailure.h"

namespace {

constexpr char description[] = "Takes one event through the gateway.";

constexpr char footer[] = R"(The event comes as arguments of the form key=value. Needed are
  EventName             the event, as in publishLkPart
  EventTriggeredByUser  the user
  RootShadowDir         the folder under which the event gets a directory of its own
All others travel with the event. A "\" before a "=" puts the "=" into the key. The values of LoginPassword and
KPDMPasswd are never shown.

The environment variable GATEWAY_HOME names the gateway's home, with
  config/client-config.ini  "local-server-url=..."
  config/log4cxx.xml        what is logged and where; without it, nothing is

Exit codes
  0  the event went the whole road
  1  something unexpected
  2  the command line: an unknown option, or an argument is missing
  3  the gateway home or a configuration file in it
  4  the event's shadow directory)";

int fail(zvExitCode code, const std::string& message) {
    std::fflush(stdout);
    std::fprintf(stderr, "zvgateway: %s\n", message.c_str());
    return static_cast<int>(code);
}

int takeEvent(const std::vector<std::string>& arguments) {
    for (const std::string& argument : arguments) {
        if (argument.rfind('-', 0) == 0) {
            return fail(zvExitCode::usage,
                        "unknown option " +
                            zvConsole::printable(zvSecrets::maskedArgument(argument.c_str())) +
                            " (see zvgateway --help)");
        }
    }
    try {
        zvEventRoad(arguments).run();
        return static_cast<int>(zvExitCode::success);
    } catch (const zvStepFailure& failure) {
        return fail(failure.exitCode, failure.step + ": " + failure.subject + ": " + failure.reason);
    } catch (const zvException& exception) {
        return fail(zvExitCode::unexpected, zvCharString(exception.getResult().getMessage()).data());
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        zvPlatform::adoptUserLocale();
        CLI::App program(description, "zvgateway");
        program.footer(footer);
        program.set_version_flag("--version", "zvgateway " ZV_VERSION);
        program.allow_extras();
        program.allow_windows_style_options(false);
        CLI11_PARSE(program, argc, argv);
        return takeEvent(program.remaining());
    } catch (const std::exception& exception) {
        return fail(zvExitCode::unexpected, exception.what());
    }
}
