#ifndef ZV_OPERATION_COMMANDS_H
#define ZV_OPERATION_COMMANDS_H

#include <CLI/CLI.hpp>

#include "zvBatchCommand.h"
#include "zvListCommand.h"
#include "zvPruneCommand.h"
#include "zvResumeCommand.h"
#include "zvRoadSession.h"

/// The subcommands for many events, batch, list, resume and prune: their command lines, and the road that the
/// first and the third take events along.
class zvOperationCommands {
public:
    void declare(CLI::App& program);
    /// Whether the command line, once it is parsed, asks for one of them.
    static bool wasAskedFor(const CLI::App& program);
    /// Runs that one.
    zvExitCode run(const CLI::App& program, zvRoadSession& session);

private:
    void declareBatch(CLI::App& program);
    void declareList(CLI::App& program);
    void declareResume(CLI::App& program);
    void declarePrune(CLI::App& program);

    zvBatchCommand m_batch;
    zvListCommand m_list;
    zvResumeCommand m_resume;
    zvPruneCommand m_prune;
};

#endif
