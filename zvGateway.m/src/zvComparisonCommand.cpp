#include "zvComparisonCommand.h"

#include "zvCaseOutcomes.h"
#include "zvStandardInput.h"

namespace {

constexpr char footer[] =
    R"(Prints what differs in meaning: "+" for what was added, "-" for what was removed, "~" for what has changed.
A mapping rule is compared as a tree, whatever its blanks and brackets. The order of parts counts only where it decides:
of candidates, which are tried in turn, of transitions, and of the parts of a rule that can fail.
With cases, which "zvgateway test" runs, it says whose outcome changes.
Exit code 0 if nothing differs, 12 if something does, 6 for a configuration that is not read to its end, 2 for cases
that cannot be read and a page that cannot be written.)";

}  // namespace

void zvComparisonCommand::declare(CLI::App& program) {
    CLI::App& diff = *program.add_subcommand("diff", "Says what differs between two configurations");
    diff.add_option("old", m_diff.before, "The configuration file that is in use; - for standard input")
        ->required();
    diff.add_option("new", m_diff.after, "The configuration file that takes its place; - for standard input")
        ->required();
    diff.add_option("--cases", m_cases, "Files of cases: also says whose outcome changes")->take_all();
    diff.add_flag("--json", m_diff.asJson, "One JSON document on standard output");
    diff.add_option("--html", m_diff.page, "Writes a page, with both side by side, instead");
    diff.footer(footer);
}

zvExitCode zvComparisonCommand::run() {
    std::vector<std::string> inputs = m_cases;
    inputs.insert(inputs.end(), {m_diff.before, m_diff.after});
    zvStandardInput::requireOnceAtMost(inputs);
    const zvCaseOutcomes cases(m_cases);
    if (!m_cases.empty()) {
        m_diff.runCases = [&cases] {
            zvCoverage coverage(*zvCfgConfigManager::getCfgConfigManager());
            return cases.run(coverage);
        };
    }
    return m_diff.run();
}
