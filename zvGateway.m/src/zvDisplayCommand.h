#ifndef ZV_DISPLAY_COMMAND_H
#define ZV_DISPLAY_COMMAND_H

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "zvShowCommand.h"

/// The subcommand show: its command line, and the cases whose coverage the page has.
class zvDisplayCommand {
public:
    void declare(CLI::App& program);
    zvExitCode run();

private:
    zvShowCommand m_show;
    std::vector<std::string> m_cases;
};

#endif
