#ifndef ZV_AUTHORING_COMMANDS_H
#define ZV_AUTHORING_COMMANDS_H

#include <CLI/CLI.hpp>

#include "zvMapCommand.h"
#include "zvNewCommand.h"
#include "zvTestCommand.h"

/// The subcommands for who writes configurations, new, map and test: their command lines.
class zvAuthoringCommands {
public:
    void declare(CLI::App& program);
    /// Whether the command line, once it is parsed, asks for one of them.
    static bool wasAskedFor(const CLI::App& program);
    /// Runs that one.
    zvExitCode run(const CLI::App& program) const;

private:
    zvMapCommand m_map;
    zvNewCommand m_new;
    zvTestCommand m_test;
};

#endif
