#ifndef ZV_GATEWAY_HOME_H
#define ZV_GATEWAY_HOME_H

#include "zvKeptString.h"
#include "zvTextBuilder.h"

/// The gateway's home folder, which the logger and the gateway environment both start from. Throws
/// std::bad_alloc when out of memory: no name or path is cut short.
class zvGatewayHome {
public:
    /// See the operations of the same names in zvCommonUtils.
    static bool setEnvVariable(const zvString& name);
    static zvString getEnvVariable();
    static zvString getPath();

    /// The variable's value; empty when it is not set.
    static zvString readEnvironment(const zvString& name);
    /// The file `name` of the folder "config" in the home folder `home`.
    static zvString configFile(const zvString& home, const char* name) {
        return zvTextBuilder::concat(home, "\\config\\", name);
    }

private:
    static const zvString& envVariable();

    static bool m_bIsGatewayHomeSet;
    static zvKeptString m_strGatewayHomeEnvVariable;
    static zvKeptString m_strGatewayHomePath;
};

#endif
