#include "zvConfigurationReading.h"

#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"

zvConfigurationReading::zvConfigurationReading(const std::string& file, InvalidRule invalidRule) {
    const zvString error = zvDirFileUtils::getAccessError(file.c_str(), zvDirFileUtils::readable);
    if (!error.empty()) {
        throw zvProgramFailure{zvExitCode::configuration, "configuration", zvConsole::printable(file.c_str()),
                               zvConsole::printable(error)};
    }
    zvCfgMgrXmlParser parser(&m_findings, invalidRule);
    m_bComplete = parser.parse(file.c_str(), true).isOk() && m_findings.brokenDocument().empty();
    m_strPdmSystemName = parser.getPdmSystemName();
}
