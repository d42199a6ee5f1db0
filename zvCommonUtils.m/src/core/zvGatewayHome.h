#ifndef ZV_GATEWAY_HOME_H
#define ZV_GATEWAY_HOME_H

#include "zvString.h"

/// The gateway's home folder, which the logger and the gateway environment both start from.
class zvGatewayHome {
public:
    /// See the operations of the same names in zvCommonUtils.
    static bool setEnvVariable(const zvString& name);
    static zvString getEnvVariable();
    static zvString getPath();

    /// The variable's value; empty when it is not set.
    static zvString readEnvironment(const zvString& name);
    /// The file `name` of the folder "config" in the home folder `home`.
    static zvString configFile(const zvString& home, const char* name) { return home + "\\config\\" + name; }

private:
    static bool m_bIsGatewayHomeSet;
    static zvString m_strGatewayHomeEnvVariable;
    static zvString m_strGatewayHomePath;
};

#endif
