#include "zvConfigurationReading.h"

#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"

zvConfigurationReading::zvConfigurationReading(const std::string& name, InvalidRule invalidRule)
    : m_input(name) {
    const zvString file = m_input.file().c_str();
    const zvString error = zvDirFileUtils::getAccessError(file, zvDirFileUtils::readable);
    if (!error.empty()) {
        throw zvProgramFailure{zvExitCode::configuration, "configuration", m_input.shownName(),
                               zvConsole::printable(error)};
    }
    zvCfgMgrXmlParser parser(&m_findings, invalidRule);
    m_bComplete = parser.parse(file, true).isOk() && m_findings.brokenDocument().empty();
    m_strPdmSystemName = parser.getPdmSystemName();
}

void zvConfigurationReading::requireComplete() const {
    if (m_bComplete) {
        return;
    }
    std::string place = m_input.shownName();
    std::string reason = "it is not read to its end";
    if (const zvFinding* const finding = m_findings.decisive()) {
        if (finding->position.line > 0) {
            place +=
                ':' + std::to_string(finding->position.line) + ':' + std::to_string(finding->position.column);
        }
        zvString text = finding->object.empty() ? finding->text : finding->object + ": " + finding->text;
        text.replace(m_input.file().c_str(), m_input.shownName().c_str());
        reason = zvConsole::printable(text);
    }
    throw zvProgramFailure{zvExitCode::configuration, "configuration", place, reason};
}
