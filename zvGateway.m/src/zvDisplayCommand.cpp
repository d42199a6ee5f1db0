#include "zvDisplayCommand.h"

#include "zvCaseOutcomes.h"
#include "zvStandardInput.h"

namespace {

constexpr char footer[] =
    R"(With cases, which "zvgateway test" runs, the page says how much of the configuration they reach, marks what they do
not, and lists those that failed.
Exit code 6 for a configuration that is not read to its end, 2 for cases that cannot be read and a page that cannot be
written.)";

}  // namespace

void zvDisplayCommand::declare(CLI::App& program) {
    CLI::App& show = *program.add_subcommand("show", "Prints a configuration for people");
    show.add_option("file", m_show.file, "The configuration file; - for standard input")->required();
    CLI::Option* const page = show.add_option("--html", m_show.page,
                                              "Writes it as a page with a search field and pictures instead");
    show.add_option("--cases", m_cases, "Files of cases: the page marks what none of them reaches")
        ->take_all()
        ->needs(page);
    show.footer(footer);
}

zvExitCode zvDisplayCommand::run() {
    std::vector<std::string> inputs = m_cases;
    inputs.push_back(m_show.file);
    zvStandardInput::requireOnceAtMost(inputs);
    const zvCaseOutcomes cases(m_cases);
    if (!m_cases.empty()) {
        m_show.runCases = [&cases] {
            zvCoverage coverage(*zvCfgConfigManager::getCfgConfigManager());
            std::vector<zvCaseOutcome> outcomes = cases.run(coverage);
            return zvTestedCases{std::move(outcomes), coverage.summary()};
        };
    }
    return m_show.run();
}
