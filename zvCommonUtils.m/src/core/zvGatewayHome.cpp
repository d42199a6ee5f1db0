#include "zvGatewayHome.h"

#include <cstdio>

#include "zvCharString.h"
#include "zvPlatform.h"

bool zvGatewayHome::m_bIsGatewayHomeSet = false;
zvString zvGatewayHome::m_strGatewayHomeEnvVariable;
zvString zvGatewayHome::m_strGatewayHomePath;

bool zvGatewayHome::setEnvVariable(const zvString& name) {
    if (m_bIsGatewayHomeSet || name.empty()) {
        return false;
    }
    m_strGatewayHomeEnvVariable = name;
    m_strGatewayHomePath = readEnvironment(name);
    m_bIsGatewayHomeSet = true;
    return true;
}

zvString zvGatewayHome::getEnvVariable() {
    setEnvVariable("GATEWAY_HOME");
    return m_strGatewayHomeEnvVariable;
}

zvString zvGatewayHome::getPath() {
    zvString path = readEnvironment(getEnvVariable());
    if (path.empty()) {
        std::printf("Environmental variable \"GATEWAY_HOME\" could not be found.");
    }
    return path;
}

zvString zvGatewayHome::readEnvironment(const zvString& name) {
    return zvPlatform::environment(zvCharString(name).data()).c_str();
}
