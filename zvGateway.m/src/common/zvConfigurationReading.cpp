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
    if (m_bComplete) {
        return;
    }
    std::string place = zvConsole::printable(m_file.c_str());
    std::string reason = "it is not read to its end";
    if (const zvFinding* const finding = m_findings.decisive()) {
        if (finding->position.line > 0) {
            place +=
                ':' + std::to_string(finding->position.line) + ':' + std::to_string(finding->position.column);
        }
        reason = zvConsole::printable(finding->object.empty() ? finding->text
                                                              : finding->object + ": " + finding->text);
    }
    throw zvProgramFailure{zvExitCode::configuration, "configuration", place, reason};
}
