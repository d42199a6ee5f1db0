#ifndef ZV_CHECK_COMMAND_H
#define ZV_CHECK_COMMAND_H

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "zvFailure.h"
#include "zvRoadSession.h"

class zvCheckReport;

/// `zvgateway check`: tells everything that is wrong with configuration files, or with the gateway home.
class zvCheckCommand {
public:
    /// The session has the secrets, to which the home may refer.
    explicit zvCheckCommand(zvRoadSession& session) : m_session(session) {}

    void declare(CLI::App& program);
    bool looksAtHome() const { return m_bHome || m_files.empty(); }
    zvExitCode run();

private:
    void checkHome(zvCheckReport& report);

    zvRoadSession& m_session;
    std::vector<std::string> m_files;
    bool m_bHome = false;
    bool m_bOffline = false;
    bool m_bStrict = false;
    bool m_bJson = false;
};

#endif
