#include "zvConfigurationStep.h"

#include "zvCfgConfigManager.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFindingList.h"
#include "zvMappingStep.h"

namespace {

void read(const zvString& file) {
    const auto failure = [&file](const std::string& reason) {
        return zvStepFailure{zvConsole::printablePath(file), reason};
    };
    const zvString error = zvDirFileUtils::getAccessError(file, zvDirFileUtils::readable);
    if (!error.empty()) {
        throw failure(zvConsole::printable(error));
    }
    zvFindingList findings;
    const zvResult parsed = zvCfgMgrXmlParser(&findings).parse(file, true);
    if (!findings.brokenDocument().empty()) {
        throw failure(findings.brokenDocument());
    }
    if (!parsed.isOk()) {
        const std::string reason = findings.lastError();
        throw failure(reason.empty() ? zvConsole::printable(parsed.getMessage()) : reason);
    }
}

}  // namespace

zvStepOutcome zvConfigurationStep::run() const {
    const std::string reason = zvMappingStep(m_event).reasonToLeaveOut();
    if (!reason.empty()) {
        return zvStepOutcome::leftOut(reason);
    }
    zvString file = m_event.argument("ConfigFile");
    if (file.empty()) {
        file = zvCommonUtils::getConfigurationFile("customization-config.xml");
    }
    read(file);
    const int objects = zvCfgConfigManager::getCfgConfigManager()->numObjects();
    zvConsole::fact("file", zvConsole::printablePath(file));
    zvConsole::fact("objects", std::to_string(objects));
    return zvStepOutcome::done(zvConsole::counted(objects, "object"));
}
