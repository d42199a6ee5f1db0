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
    void readAttachments();
    void copyIntoShadowDirectory(const zvString& attachmentsFile) const;

    zvString argument(const char* key) const;
    /// The path of `name` in the event's shadow directory.
    zvString inShadowDirectory(const zvString& name) const;

    std::vector<std::string> m_commandLine;
    std::unique_ptr<zvEventArguments, Destroy> m_pArguments;
};

#endif
