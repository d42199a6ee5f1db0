#ifndef ZV_EVENT_ROAD_H
#define ZV_EVENT_ROAD_H

#include <memory>
#include <string>
#include <vector>

#include "zvEventArguments.h"

/// The road of one event through the gateway: each step prints what it does and throws a zvStepFailure when
/// it cannot do it.
class zvEventRoad {
public:
    /// `arguments` are the event's, `key=value` each.
    explicit zvEventRoad(std::vector<std::string> arguments);

    void run();

private:
    struct Destroy {
        void operator()(zvEventArguments* arguments) const { arguments->destroy(); }
    };

    void readArguments();
    void requireArguments() const;
    void findGatewayHome();
    void prepareShadowDirectory();

    std::vector<std::string> m_commandLine;
    std::unique_ptr<zvEventArguments, Destroy> m_pArguments;
};

#endif
