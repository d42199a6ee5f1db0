#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "zvAuthoringCommands.h"
#include "zvCharString.h"
#include "zvCheckCommand.h"
#include "zvCommonUtils.h"
#include "zvComparisonCommand.h"
#include "zvConsole.h"
#include "zvDisplayCommand.h"
#include "zvEvaluateCommand.h"
#include "zvEventRoad.h"
#include "zvException.h"
#include "zvFailure.h"
#include "zvHomeSettings.h"
#include "zvInterruption.h"
#include "zvJavaStart.h"
#include "zvOperationCommands.h"
#include "zvPrepareJavaCommand.h"
#include "zvProcess.h"
#include "zvProcessEnd.h"
#include "zvRoadReport.h"
#include "zvRoadSession.h"
#include "zvSecretOptions.h"
#include "zvSecrets.h"
#include "zvShownArguments.h"

namespace {

constexpr char footer[] = R"(The event comes as arguments of the form key=value. Needed are
  EventName              the event, as in publishLkPart
  EventTriggeredByUser   the user
  RootShadowDir          the folder under which the event gets a directory of its own
and there may be
  LocalType, RemoteType  the type of the event's object in the system that it comes from: it is mapped
  attr.NAME              an attribute of the object
  FromState, ToState     lifecycle states of the object: the way between them is shown
  ConfigFile             the configuration, instead of the gateway home's
  AttachmentsFile        an XML file that lists the files which the event carries
  EventShadowDir         the directory, below RootShadowDir, of an earlier run of the event: it resumes there, and
                         what arrived is not sent again
All others travel with the event. A "\" before a "=" puts the "=" into the key. An argument that has no "=" or no
key, or whose key was given before, ends the program.

The values of LoginPassword and KPDMPasswd, and of the keys that "secret-keys" in client-config.ini names, are never
shown, but the system shows a command line to others. Secrets can come from --secrets, from --secrets-fd, and from the
folder that the environment variable CREDENTIALS_DIRECTORY names: a file for each, whose name is the key. They become
arguments of the event, and are never shown whatever their keys.

The environment variable GATEWAY_HOME names the gateway's home, with
  config/client-config.ini  "local-server-url=..."
  config/log4cxx.xml        what is logged and where; without it, nothing is
  config/customization-config.xml  the mapping between the two systems
  config/fileserver.properties     the file server; without it, the event's files stay where they are
Files are sent by the Java client on CLASSPATH; when that is not set, by the one that came with the program.

Exit codes
  0  the event went the whole road
  1  something unexpected
  2  the command line: an unknown option, an argument that is missing or cannot be used, secrets that cannot be read
  3  the gateway home or a configuration file in it
  4  the event's shadow directory
  5  the event's attachments
  6  the configuration file, or an error that "check" finds in it
  7  the mapping of the event's object, and values that do not fit their declared types
  8  the transfer of the event's files
  9  the post to the local server
  10 some events of batch or resume
  11 some cases of test
  12 two configurations that "diff" compares differ

The last line on standard error, and in the log, is what became of the event.)";

int fail(zvExitCode code, const std::string& message) {
    zvConsole::flush();
    zvConsole::complain(message);
    return static_cast<int>(code);
}

int fail(zvProgramFailure failure) {
    failure.subject = zvShownArguments::masked(failure.subject);
    failure.reason = zvShownArguments::masked(failure.reason);
    if (zvConsole::hasLeftStandardOutput() && !zvConsole::hasAnswered()) {
        zvRoadReport::printJson(failure);
    }
    const std::string subject = failure.subject + (failure.subject.empty() ? "" : ": ");
    return fail(failure.exitCode, failure.step + ": " + subject + failure.reason);
}

zvExitCode takeEvent(zvRoadSession& session, std::vector<std::string> arguments) {
    for (const std::string& argument : arguments) {
        if (argument.rfind('-', 0) == 0) {
            throw zvProgramFailure{zvExitCode::usage, "options",
                                   zvConsole::printable(zvSecrets::maskedArgument(argument.c_str())),
                                   "there is no such option (see zvgateway --help)"};
        }
    }
    zvProcess::noteSignals();
    zvEventRoad road(session, std::move(arguments));
    const zvProcessEnd unexpected([&road] {
        const zvEventOutcome& outcome = road.outcome();
        zvConsole::outcome(outcome.text(), true);
        return static_cast<zvExitCode>(
            fail({outcome.exitCode, outcome.step, outcome.subject, outcome.reason}));
    });
    try {
        road.run();
    } catch (const zvProgramFailure&) {
        zvConsole::outcome(road.outcome().text(), true);
        throw;
    }
    zvConsole::outcome(road.outcome().text(), false);
    return zvExitCode::success;
}

// What the program was started for has been printed, and must not be lost without a word.
int finish(zvExitCode code) {
    if (!zvConsole::flush()) {
        const int failed = fail(zvExitCode::unexpected, "standard output could not be written to its end");
        return code == zvExitCode::success ? failed : static_cast<int>(code);
    }
    return static_cast<int>(code);
}

// The subcommands need no gateway home. Without one the library would say so on standard output, in the
// middle of the answer: it is given one that holds nothing.
void goWithoutHome() {
    const zvString variable = zvCommonUtils::getGatewayHomeEnvVariable();
    if (zvCommonUtils::getEnvironmentalVariable(variable).empty()) {
        zvProcess::setEnvironment(zvCharString(variable).data(), "no-gateway-home");
    }
}

void declarePrepareJava(CLI::App& program, zvPrepareJavaCommand& command) {
    CLI::App& prepare =
        *program.add_subcommand("prepare-java", "Makes the archive of classes with which Java starts sooner");
    // For the process that does it.
    prepare.add_option("--into", command.into)->group("");
    prepare.add_option("options", command.javaOptions)->group("");
    prepare.footer(
        R"(Prints where it is: in the folder zvgateway of XDG_CACHE_HOME, or of .cache in the user's home. An event that misses
it makes it in the end, so this is for who wants no event to: after an installation, as the user who runs the events.
Exit code 1 if it cannot be made, with the reason.)");
}

void declareRoad(CLI::App& program, zvRoadOptions& options) {
    program.add_flag("--dry-run", options.isDryRun, "Does everything but the transfer and the post");
    program.add_flag("--json", options.asJson,
                     "The summary goes to standard output as JSON, and everything else to standard error");
    program.add_flag_callback("--quiet", zvConsole::setQuiet, "Prints failures only, as for cron");
    program.add_flag("--lenient", options.isLenient,
                     "Values that do not fit their declared types are warned of, and sent");
    program.add_flag_callback(
        "--require-log",
        [&options] {
            options.requiresLog = true;
            // Before the first line is logged.
            zvProcess::setEnvironment("GATEWAY_LOG_REQUIRED", "yes");
        },
        "A log that cannot be written fails the event (exit code 3)");
    zvSecretOptions::declare(program, options, "which become arguments");
}

// Declares the program's options, and runs what the command line asks for.
int runProgram(const std::vector<std::string>& arguments) {
    CLI::App program("Takes one event through the gateway: zvgateway key=value ...", "zvgateway");
    program.footer(footer);
    program.allow_windows_style_options(false);  // before the subcommands; "/" begins a path
    program.set_version_flag("--version", "zvgateway " ZV_VERSION);
    zvRoadSession session;
    declareRoad(program, session.options);

    zvEvaluateCommand evaluation;
    CLI::App& eval = *program.add_subcommand("eval", "Evaluates a condition, as mapping rules have them");
    eval.add_option("condition", evaluation.condition, "As in \"{state} = 'RELEASED' AND NOT {rev} < '2'\"")
        ->required();
    eval.add_option("attributes", evaluation.attributes,
                    "name=value or name:Type=value, the type being Integer, Float, String, Date or Boolean");
    eval.add_flag("--explain", evaluation.explain, "Prints the outcome of every part");
    eval.footer("Prints true or false. Exit code 2 for an invalid condition or attribute.");
    zvCheckCommand checking(session);
    checking.declare(program);
    zvDisplayCommand showing;
    showing.declare(program);
    zvComparisonCommand comparison;
    comparison.declare(program);
    zvOperationCommands operation;
    operation.declare(program);
    zvAuthoringCommands authoring;
    authoring.declare(program);
    zvPrepareJavaCommand preparing;
    declarePrepareJava(program, preparing);
    program.allow_extras();  // after the subcommands, which would inherit it

    try {
        program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0) {
            throw zvProgramFailure{zvExitCode::usage, "options", "",
                                   zvConsole::printable(error.what()) + " (see zvgateway --help)"};
        }
        // Prints the help or the version.
        return program.exit(error);
    }
    if (program.get_subcommands().empty()) {
        const zvExitCode code = takeEvent(session, program.remaining());
        zvConsole::flush();
        zvJavaStart::leaveArchive();
        return session.options.asJson ? finish(code) : static_cast<int>(code);
    }
    if (operation.wasAskedFor(program)) {
        const zvExitCode code = operation.run(program, session);
        zvJavaStart::leaveArchive();
        return finish(code);
    }
    if (program.got_subcommand("check") && checking.looksAtHome()) {
        return finish(checking.run());
    }
    goWithoutHome();
    return finish(eval.parsed()                               ? evaluation.run()
                  : zvAuthoringCommands::wasAskedFor(program) ? authoring.run(program)
                  : program.got_subcommand("check")           ? checking.run()
                  : program.got_subcommand("diff")            ? comparison.run()
                  : program.got_subcommand("prepare-java")    ? preparing.run()
                                                              : showing.run());
}

// The exit code; every failure has been told.
int runGuarded(const std::vector<std::string>& arguments) {
    try {
        zvHomeSettings::adoptSecretKeys();
        zvShownArguments::setCommandLine(arguments);
        // Before anything can be printed, also of a command line that cannot be parsed.
        if (std::find(arguments.begin(), arguments.end(), "--json") != arguments.end()) {
            zvConsole::leaveStandardOutput();
        }
        return runProgram(arguments);
    } catch (const zvProgramFailure& failure) {
        return fail(failure);
    } catch (const zvInterruption& interruption) {
        constexpr int signalBase = 128;  // as shells count
        return fail({static_cast<zvExitCode>(signalBase + interruption.signal), "interrupted", "",
                     "by signal " + std::to_string(interruption.signal) +
                         "; the same command goes on where it stopped"});
    } catch (const zvException& exception) {
        return fail({zvExitCode::unexpected, "unexpected", "",
                     zvConsole::printable(exception.getResult().getMessage())});
    } catch (const std::exception& exception) {
        return fail({zvExitCode::unexpected, "unexpected", "", zvConsole::printable(exception.what())});
    }
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments = zvProcess::takeArguments(argc, argv);
    zvProcess::reportFullFiles();
    zvProcess::end(runGuarded(arguments));
}
