#include "zvConfigurationReading.h"

#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"

zvConfigurationReading::zvConfigurationReading(const std::string& file, InvalidRule invalidRule)
    : m_file(file) {
    const zvString error = zvDirFileUtils::getAccessError(file.c_str(), zvDirFileUtils::readable);
    if (!error.empty()) {
        throw zvProgramFailure{zvExitCode::configuration, "configuration", zvConsole::printable(file.c_str()),
                               zvConsole::printable(error)};
    }
    zvCfgMgrXmlParser parser(&m_findings, invalidRule);
    m_bComplete = parser.parse(file.c_str(), true).isOk() && m_findings.brokenDocument().empty();
    m_strPdmSystemName = parser.getPdmSystemName();
}

void zvConfigurationReading::requireComplete() const {
    if (!m_bComplete) {
        const std::string broken = m_findings.brokenDocument();
        const std::string error = broken.empty() ? m_findings.lastError() : broken;
        throw zvProgramFailure{zvExitCode::configuration, "configuration",
                               zvConsole::printable(m_file.c_str()),
                               error.empty() ? "it is not read to its end" : error};
    }
}
