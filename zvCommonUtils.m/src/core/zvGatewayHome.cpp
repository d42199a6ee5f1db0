#include "zvGatewayHome.h"

#include <cstdio>

#include "zvKeptText.h"
#include "zvPlatform.h"

bool zvGatewayHome::m_bIsGatewayHomeSet = false;
zvKeptString zvGatewayHome::m_strGatewayHomeEnvVariable;
zvKeptString zvGatewayHome::m_strGatewayHomePath;

bool zvGatewayHome::setEnvVariable(const zvString& name) {
    if (m_bIsGatewayHomeSet || name.empty()) {
        return false;
    }
    m_strGatewayHomeEnvVariable = name;
    m_strGatewayHomePath = readEnvironment(name);
    m_bIsGatewayHomeSet = true;
    return true;
}

const zvString& zvGatewayHome::envVariable() {
    if (!m_bIsGatewayHomeSet) {
        setEnvVariable(zvKeptText::widen("GATEWAY_HOME"));
    }
    return m_strGatewayHomeEnvVariable;
}

zvString zvGatewayHome::getEnvVariable() { return zvKeptString(envVariable()); }

zvString zvGatewayHome::getPath() {
    zvString path = readEnvironment(envVariable());
    if (path.empty()) {
        std::printf("Environmental variable \"GATEWAY_HOME\" could not be found.");
    }
    return path;
}

zvString zvGatewayHome::readEnvironment(const zvString& name) {
    return zvKeptText::widen(zvPlatform::environment(zvKeptText::Narrow(name).data()).c_str());
}
