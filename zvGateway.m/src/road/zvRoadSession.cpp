#include "zvRoadSession.h"

#include <cstdlib>

#include "zvCfgConfigManager.h"
#include "zvCfgMgrXmlParser.h"
#include "zvClientSettings.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFailure.h"
#include "zvFileStamp.h"
#include "zvFindingList.h"
#include "zvNativePath.h"

namespace {

void parse(const zvString& file) {
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

const zvSecretStore& zvRoadSession::secrets() {
    if (!m_bSecretsRead) {
        readSecrets();
        m_bSecretsRead = true;
    }
    return m_secrets;
}

void zvRoadSession::readSecrets() {
    if (!options.secretsFile.empty()) {
        m_secrets.readFile(options.secretsFile);
    }
    if (options.secretsDescriptor >= 0) {
        m_secrets.readDescriptor(options.secretsDescriptor);
    }
    const char* const folder = std::getenv("CREDENTIALS_DIRECTORY");
    if (folder != nullptr && *folder != '\0') {
        m_secrets.readFolder(folder);
    }
}

std::chrono::seconds zvRoadSession::eventTimeout() {
    if (!m_eventTimeout) {
        zvClientSettings settings;
        m_eventTimeout = std::chrono::seconds(static_cast<int>(settings.number("event-timeout", 0)));
        settings.tellFaults();
    }
    return *m_eventTimeout;
}

void zvRoadSession::keepXmlReady() {
    if (!m_xml) {
        m_xml.emplace();
    }
}

void zvRoadSession::loadConfiguration(const zvString& file) {
    const std::string stamp = fileStamp(toNativePath(file));
    if (!stamp.empty() && file == m_strConfigurationFile && stamp == m_strConfigurationStamp) {
        return;
    }
    keepXmlReady();
    // What an earlier one left, also one whose reading failed, is not this one's.
    zvCfgConfigManager::destroyCfgConfigManager();
    m_strConfigurationStamp.clear();
    parse(file);
    m_strConfigurationFile = file;
    m_strConfigurationStamp = stamp;
}
