#include "zvRoadSession.h"

#include <cstdlib>

#include "zvCfgConfigManager.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDeliveredFile.h"
#include "zvDirFileUtils.h"
#include "zvFSClient.h"
#include "zvFailure.h"
#include "zvFileStamp.h"
#include "zvFindingList.h"
#include "zvNativePath.h"
#include "zvProcess.h"

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

// A machine that runs for one event starts sooner with these, and one that runs for many does not grow with
// each.
constexpr const char* javaOptions[] = {"-XX:+IgnoreUnrecognizedVMOptions", "-XX:+UseSerialGC",
                                       "-XX:TieredStopAtLevel=1", "-Xmn4m"};

bool isSet(const char* variable) { return !zvCommonUtils::getEnvironmentalVariable(variable).empty(); }

// The delivered Java client, unless the site has one of its own on CLASSPATH.
void offerClient() {
    if (isSet("CLASSPATH")) {
        return;
    }
    const std::string jar = findDeliveredFile("../" ZV_DATA_FOLDER "/zvFileServerClient.jar",
                                              "../zvFileServerClient.j/zvFileServerClient.jar");
    if (!jar.empty()) {
        zvProcess::setEnvironment("CLASSPATH", jar.c_str());
    }
}

}  // namespace

void zvRoadSession::prepareJava() {
    if (m_bJavaPrepared) {
        return;
    }
    m_bJavaPrepared = true;
    offerClient();
    // These variables reach the machine, too, and may contradict.
    if (!isSet("JAVA_TOOL_OPTIONS") && !isSet("_JAVA_OPTIONS")) {
        for (const char* const option : javaOptions) {
            zvFSClient::addJavaOption(option);
        }
    }
}

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

void zvRoadSession::loadConfiguration(const zvString& file) {
    const std::string stamp = fileStamp(toNativePath(file));
    if (!stamp.empty() && file == m_strConfigurationFile && stamp == m_strConfigurationStamp) {
        return;
    }
    // What an earlier one left, also one whose reading failed, is not this one's.
    zvCfgConfigManager::destroyCfgConfigManager();
    m_strConfigurationStamp.clear();
    parse(file);
    m_strConfigurationFile = file;
    m_strConfigurationStamp = stamp;
}
