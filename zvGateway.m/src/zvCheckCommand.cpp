#include "zvCheckCommand.h"

#include "zvCheckReport.h"
#include "zvConfigurationFileCheck.h"
#include "zvHomeCheck.h"
#include "zvProcessEnd.h"
#include "zvSecretOptions.h"

namespace {

constexpr char footer[] =
    R"(Prints a line for each fault, as file:line:column: severity: text [kind], and their number at the end.
Errors
  what is left out when the file is read, a mapping rule that does not parse, and what ends the reading
  an object that nothing reaches: an earlier one of the same types has no mapping rule
  an attribute with an unknown data type
Warnings
  a name that is another attribute's already; an extension without a transfer mode
  an object that is not reached from its local, or its remote, type alone; an object without types
  an extension that is neither imported nor exported, or differs from another one in case only
  "Import" or "Export" that is neither "True" nor "False", an "Index" that is no number; a file object without extensions
  a lifecycle that is empty, or has a state to which no way leads from the first one
  a view collection without a view; an element or an attribute that is not known where it stands
Exit code 6 for errors, and with --strict for warnings.

Without a file, or with --home, it is the gateway home that is looked at, which GATEWAY_HOME names: the files of its
folder "config" with every key, the log, Java and the file server's client, and, unless --offline is given, the file
server and the HTTP server. There is a line for each thing, with "ok", "left out" or the fault. Nothing is changed: the
file server gets a small file that is removed at once, and the HTTP server a connection. The exit code is that of the
first step at which an event would stop: 3, 6, 8 or 9.)";

}  // namespace

void zvCheckCommand::declare(CLI::App& program) {
    CLI::App& check =
        *program.add_subcommand("check", "Says everything that is wrong with a configuration, or a home");
    check.add_option("files", m_files, "The configuration files; - for standard input");
    check.add_flag("--home", m_bHome, "Looks at the gateway home, also when there are files");
    check.add_flag("--offline", m_bOffline, "Leaves the home's servers out");
    check.add_flag("--strict", m_bStrict, "Warnings fail as errors do");
    check.add_flag("--json", m_bJson, "One JSON document on standard output");
    zvSecretOptions::declare(check, m_session.options, "to which the file server's configuration may refer");
    check.footer(footer);
}

zvExitCode zvCheckCommand::run() {
    zvCheckReport report(m_bJson, m_bStrict);
    const zvProcessEnd unexpected([&report] { return report.finish(); });
    if (looksAtHome()) {
        checkHome(report);
    }
    for (const std::string& file : m_files) {
        zvConfigurationFileCheck::run(file, report);
    }
    return report.finish();
}

void zvCheckCommand::checkHome(zvCheckReport& report) {
    try {
        zvHomeCheck(report, zvConfigurationFileCheck::addFaults).run(m_bOffline, m_session.secrets());
    } catch (const zvStepFailure& failure) {
        throw zvProgramFailure{zvExitCode::usage, "secrets", failure.subject, failure.reason};
    }
}
