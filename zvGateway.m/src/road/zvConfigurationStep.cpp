#include "zvConfigurationStep.h"

#include "zvCfgConfigManager.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvMappingStep.h"

zvStepOutcome zvConfigurationStep::run() const {
    const std::string reason = zvMappingStep(m_event).reasonToLeaveOut();
    if (!reason.empty()) {
        return zvStepOutcome::leftOut(reason);
    }
    zvString file = m_event.argument("ConfigFile");
    if (file.empty()) {
        file = zvCommonUtils::getConfigurationFile("customization-config.xml");
    }
    m_event.session.loadConfiguration(file);
    const int objects = zvCfgConfigManager::getCfgConfigManager()->numObjects();
    zvConsole::fact("file", zvConsole::printablePath(file));
    zvConsole::fact("objects", std::to_string(objects));
    return zvStepOutcome::done(zvConsole::counted(objects, "object"));
}
