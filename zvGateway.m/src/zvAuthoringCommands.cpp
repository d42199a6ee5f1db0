#include "zvAuthoringCommands.h"

#include <algorithm>

namespace {

constexpr const char* names[] = {"map", "new", "test"};

constexpr char testFooter[] =
    R"(A file of cases is YAML: "configuration:", the configuration's name from the file's own folder, and "cases:", a list.
A case is one of
  an object     local or remote: its type; attributes: its values. Then gives: its type in the other system, with: all
                its attributes there, each a value or {value: V, type: T} or {default: V}, left-out: [names that
                have no place there]; or refused: a part of the reason
  a condition   condition: its text; attributes: values or {value: V, type: T}; holds: true or false, or refused:
  a lifecycle   lifecycle: its object type; from, to: states; way: [Promote STATE, ...] or none
  a file type   file: the extension; of: the file object's type; import, export: true or false; mode: BINARY or ASCII
and may have a name. There is a line for each case that failed, with what was expected and what came, and then what
became of every part of the rules. The coverage says which objects, rules, operands of AND and OR, attributes,
defaults, file types and transitions no case reaches.
Exit code 11 if a case failed, 2 for a file of cases that cannot be read, 6 for a configuration.)";

}  // namespace

void zvAuthoringCommands::declare(CLI::App& program) {
    CLI::App& map = *program.add_subcommand("map", "Prints what would become of an event's object");
    map.add_option(
           "arguments", m_map.arguments,
           "key=value, as for an event: LocalType, RemoteType, attr.NAME, FromState, ToState, ConfigFile")
        ->required();
    map.add_flag("--explain", m_map.explain,
                 "Also why: the candidates, every part of their rules, where each attribute comes from");
    map.add_flag("--json", m_map.asJson, "One JSON document on standard output");
    map.footer(
        "Nothing else is done: no directory is made and nothing is sent. Other arguments are not looked at. "
        "Exit code 6 for a\nconfiguration that cannot be read, 7 for an object that is refused.");
    CLI::App& home = *program.add_subcommand("new", "Makes a gateway home to start from");
    home.add_option("folder", m_new.folder, "A folder that is empty or does not exist")->required();
    home.footer(
        "It has a commented configuration with its cases, and the settings of the log and of the servers. "
        "Exit code 2 for a\nfolder that is not empty or cannot be made.");
    CLI::App& test = *program.add_subcommand("test", "Runs the cases of a configuration");
    test.add_option("files", m_test.files, "Files of cases; - for standard input")->required();
    test.add_option("--config", m_test.configuration,
                    "The configuration, instead of what the files name; - for standard input");
    test.add_option("--junit", m_test.junit, "Writes the outcome for CI servers to this file");
    test.add_flag("--coverage", m_test.showsGaps, "Lists everything that no case reaches, not the first ten");
    test.add_flag("--require-coverage", m_test.requiresCoverage,
                  "Fails if there is something that no case reaches");
    test.add_flag("--json", m_test.asJson, "One JSON document on standard output");
    test.footer(testFooter);
}

bool zvAuthoringCommands::wasAskedFor(const CLI::App& program) {
    return std::any_of(std::begin(names), std::end(names),
                       [&program](const char* name) { return program.got_subcommand(name); });
}

zvExitCode zvAuthoringCommands::run(const CLI::App& program) const {
    return program.got_subcommand("test")  ? m_test.run()
           : program.got_subcommand("map") ? m_map.run()
                                           : m_new.run();
}
