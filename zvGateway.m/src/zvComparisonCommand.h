#ifndef ZV_COMPARISON_COMMAND_H
#define ZV_COMPARISON_COMMAND_H

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "zvDiffCommand.h"

/// The subcommand diff: its command line, and the cases that are run by both configurations.
class zvComparisonCommand {
public:
    void declare(CLI::App& program);
    zvExitCode run();

private:
    zvDiffCommand m_diff;
    std::vector<std::string> m_cases;
};

#endif
