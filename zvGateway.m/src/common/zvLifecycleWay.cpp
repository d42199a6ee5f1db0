#include "zvLifecycleWay.h"

#include "zvCfgConfigManager.h"
#include "zvConsole.h"

zvLifecycleWay::zvLifecycleWay(const std::vector<zvString>& types, const zvString& from, const zvString& to) {
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    for (const zvString& type : types) {
        if (configuration.getTransitionPaths(from, to, type, "", m_paths)) {
            m_strType = type;
            break;
        }
    }
}

std::string zvLifecycleWay::namesOf(const zvCfgLcmState& state) {
    return zvConsole::printable(state.localName()) + " (" + zvConsole::printable(state.remoteName()) + ")";
}
