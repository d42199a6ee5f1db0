#ifndef ZV_ROAD_RUNNER_H
#define ZV_ROAD_RUNNER_H

#include "zvEventRunner.h"
#include "zvRoadSession.h"

/// Runs events on the road of this program.
class zvRoadRunner : public zvEventRunner {
public:
    explicit zvRoadRunner(zvRoadSession& session) : m_session(session) {}

    void prepare() override;
    zvEventOutcome run(std::vector<std::string> arguments, const std::set<zvString>* secretNames) override;
    const zvEventOutcome* running() const override { return m_pRunning; }

private:
    zvRoadSession& m_session;
    const zvEventOutcome* m_pRunning = nullptr;
};

#endif
