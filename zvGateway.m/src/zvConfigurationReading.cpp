#include "zvConfigurationReading.h"

#include <cstring>

#include "zvCfgConfigManager.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCharString.h"
#include "zvConfigurationDocument.h"
#include "zvConfigurationNames.h"
#include "zvConsole.h"
#include "zvLogger.h"
#include "zvPlatform.h"
#include "zvStepFailure.h"

namespace {

enum class Role {
    finding,        // a fault of its own
    ofObject,       // a fault of the object that is being read
    reason,         // says why of the message that follows, which names the place
    consequence,    // says of the fault before it that it is one
    heading,        // stands above what says more
    brokenDocument  // the library goes on with what it has; an event does not
};

struct Source {
    const char* file;
    const char* beginning;  // of the message
    Role role;
};

// The first that fits decides.
constexpr Source sources[] = {
    {"zvXMLUtils.m/src/zvDOMErrorHandler", "XML PARSING ERROR", Role::heading},
    {"zvXMLUtils.m/src/zvDOMErrorHandler", "XML document read up to", Role::brokenDocument},
    {"zvConfigurationUtils.m/src/zvCfgMgrXmlParser", "Configuration file : ", Role::consequence},
    {"zvConfigurationUtils.m/src/zvCfgMgrXmlParser", "Error occured while parsing ", Role::consequence},
    {"zvConfigurationUtils.m/src/zvCfgMgrXmlParser", "Exception (", Role::consequence},
    {"zvConfigurationUtils.m/src/zvCfgObjectXmlParser", "Neither : ", Role::finding},
    {"zvConfigurationUtils.m/src/zvCfgObjectXmlParser", "Attribute \"TransferMode", Role::ofObject},
    {"zvConfigurationUtils.m/src/zvCfgObjectXmlParser", "Attribute ", Role::consequence},
    {"zvConfigurationUtils.m/src/zvCfgObjectXmlParser", "Error occured while parsing Allowed File Extensions",
     Role::consequence},
    {"zvConfigurationUtils.m/src/zvCfgObject", "", Role::ofObject},
    {"zvConditionUtils.m/", "", Role::ofObject},
    {"zvConfigurationUtils.m/src/zvCfgLcmGraph", "", Role::reason},
    {"zvConfigurationUtils.m/src/zvCfgViewConfig", "", Role::reason},
    {"", "", Role::finding},
};

bool beginsWith(const char* text, const char* beginning) {
    return std::strncmp(text, beginning, std::strlen(beginning)) == 0;
}

Role roleOf(const char* file, const std::string& message) {
    const Source* source = sources;
    while (!beginsWith(file, source->file) || !beginsWith(message.c_str(), source->beginning)) {
        ++source;
    }
    return source->role;
}

}  // namespace

zvConfigurationReading::zvConfigurationReading(const std::string& file) {
    const unsigned long error = zvPlatform::accessError(file.c_str(), zvPlatform::readable);
    if (error != 0) {
        throw zvStepFailure{zvExitCode::configuration, "configuration", zvConsole::printable(file.c_str()),
                            zvPlatform::errorText(error)};
    }
    m_bComplete = true;
    zvLogger::setListener(this);
    zvCfgMgrXmlParser parser;
    const zvResult result = parser.parse(file.c_str(), true);
    zvLogger::setListener(nullptr);
    m_bComplete = m_bComplete && result.isOk();
    m_strPdmSystemName = parser.getPdmSystemName();
}

void zvConfigurationReading::hear(zvLogLevel level, const zvString& message, const char* file, int) {
    if (level != zvLogLevel::warn && level != zvLogLevel::error && level != zvLogLevel::fatal) {
        return;
    }
    const std::string text = zvConsole::printable(message);
    const Role role = roleOf(file, text);
    if (role == Role::heading) {
        return;
    }
    if (role == Role::reason) {
        m_reasons += (m_reasons.empty() ? "" : "; ") + text;
        return;
    }
    const bool isError = level != zvLogLevel::warn || role == Role::brokenDocument;
    m_bComplete = m_bComplete && role != Role::brokenDocument;
    if (role == Role::consequence && !m_complaints.empty()) {
        m_complaints.back().finding.severity = zvFinding::Severity::error;
        return;
    }
    const int object = role == Role::ofObject ? zvCfgConfigManager::getCfgConfigManager()->numObjects() : -1;
    m_complaints.push_back({{isError ? zvFinding::Severity::error : zvFinding::Severity::warning, "",
                             m_reasons.empty() ? text : text + " (" + m_reasons + ")"},
                            object});
    m_reasons.clear();
}

std::vector<zvFinding> zvConfigurationReading::findings(const zvConfigurationDocument& document) const {
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    std::vector<zvFinding> findings;
    findings.reserve(m_complaints.size());
    for (const Complaint& complaint : m_complaints) {
        findings.push_back(complaint.finding);
        const zvCfgObject* const object = configuration.getObjectAt(complaint.object);
        // The object that the parse stopped in never came to the manager.
        if (object != nullptr) {
            findings.back().where = zvConfigurationNames::object(*object);
        } else if (complaint.object >= 0) {
            findings.back().where = document.objectAt(complaint.object);
        }
    }
    return findings;
}
