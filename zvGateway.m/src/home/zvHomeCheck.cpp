#include "zvHomeCheck.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <vector>

#include "zvCharString.h"
#include "zvClientConfigCheck.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDirFileUtils.h"
#include "zvFSClient.h"
#include "zvFileServerCheck.h"
#include "zvHomeCheckKind.h"
#include "zvHttpServerCheck.h"
#include "zvLogCheck.h"
#include "zvNativePath.h"
#include "zvNearestName.h"
#include "zvProcessEnd.h"

namespace fs = std::filesystem;

namespace {

const std::vector<zvString> knownFiles = {"client-config.ini", "log4cxx.xml", "customization-config.xml",
                                          "fileserver.properties"};

zvString fileOf(const char* name) {
    return zvDirFileUtils::nativePath(zvCommonUtils::getConfigurationFile(name));
}

}  // namespace

void zvHomeCheck::run(bool isOffline, const zvSecretStore& secrets) {
    const zvString variable = zvCommonUtils::getGatewayHomeEnvVariable();
    const zvString home = zvCommonUtils::getEnvironmentalVariable(variable);
    const auto end = [&] { m_report.endFile(home.empty() ? variable : home); };
    const zvProcessEnd unexpected([&end] {
        end();
        return zvExitCode::unexpected;
    });
    zvLogCheck::keepSilent();
    if (checkFolder(home)) {
        checkLocalServer(isOffline);
        checkLog();
        checkConfiguration();
        checkFileServer(isOffline, secrets);
    }
    end();
}

bool zvHomeCheck::checkFolder(const zvString& home) {
    const zvCheckPlace variable(zvCharString(zvCommonUtils::getGatewayHomeEnvVariable()).data());
    const auto fail = [&](const zvString& text) {
        m_report.addError(variable, zvHomeCheckKind::missing, text, zvExitCode::gatewayHome);
        return false;
    };
    if (home.empty()) {
        return fail("the environment variable is not set");
    }
    const zvString folder = zvDirFileUtils::nativePath(home + "\\config");
    const zvString error = zvDirFileUtils::getAccessError(folder, zvDirFileUtils::existence);
    if (!error.empty()) {
        return fail(folder + ": " + error);
    }
    m_report.addGood(variable, home);
    checkFileNames(folder);
    return true;
}

// A file that is not there may be there under another name.
void zvHomeCheck::checkFileNames(const zvString& folder) {
    std::vector<zvString> missing;
    std::copy_if(knownFiles.begin(), knownFiles.end(), std::back_inserter(missing), [](const zvString& name) {
        return !zvDirFileUtils::isAccessible(zvCommonUtils::getConfigurationFile(name),
                                             zvDirFileUtils::existence);
    });
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(toNativePath(folder), error), end; !error && entry != end;
         entry.increment(error)) {
        files.push_back(entry->path());
    }
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) {
        const zvString name = file.filename().string().c_str();
        const bool isKnown = std::find(knownFiles.begin(), knownFiles.end(), name) != knownFiles.end();
        const std::string suggestion = isKnown ? "" : zvNearestName::suggestion(name, missing);
        if (!suggestion.empty()) {
            m_report.addFault(zvString(file.string().c_str()),
                              {zvFinding::Severity::warning,
                               zvHomeCheckKind::unknownFile,
                               zvString(),
                               zvString(),
                               {},
                               ("a file of this name is not read" + suggestion).c_str()},
                              zvExitCode::gatewayHome);
        }
    }
}

void zvHomeCheck::checkLocalServer(bool isOffline) {
    zvClientConfigCheck file(fileOf("client-config.ini"), m_report);
    file.run();
    const zvCheckPlace server(zvHttpServerCheck::name);
    if (isOffline) {
        m_report.addLeftOut(server, "offline");
    } else if (file.url().empty()) {
        m_report.addLeftOut(server, "no address");
    } else {
        zvHttpServerCheck::run(file.url(), m_report);
    }
}

void zvHomeCheck::checkLog() {
    const zvString file = fileOf("log4cxx.xml");
    if (isThere(file, "nothing is logged")) {
        zvLogCheck(file, m_report).run();
    }
}

void zvHomeCheck::checkConfiguration() {
    const zvString file = fileOf("customization-config.xml");
    if (!isThere(file, "no event's object is mapped without the argument ConfigFile")) {
        return;
    }
    const std::ptrdiff_t before = m_report.numFaults();
    try {
        m_checkConfiguration(zvCharString(file).data(), file, m_report);
    } catch (const zvProgramFailure& failure) {
        m_report.addError(file, zvHomeCheckKind::unreadable, failure.reason.c_str(), failure.exitCode);
    }
    if (m_report.numFaults() == before) {
        m_report.addGood(file);
    }
}

void zvHomeCheck::checkFileServer(bool isOffline, const zvSecretStore& secrets) {
    const zvString file = fileOf("fileserver.properties");
    if (!isThere(file, "files stay where they are, and neither Java nor a file server is needed")) {
        return;
    }
    if (!zvConsole::hasLeftStandardOutput()) {
        zvConsole::leaveStandardOutput();  // the Java machine would print into the answer
    }
    secrets.forEach([](const zvString& name, const zvString& value) { zvFSClient::setSecret(name, value); });
    zvFileServerCheck(file, m_report).run(isOffline);
}

bool zvHomeCheck::isThere(const zvString& file, const char* without) {
    if (zvDirFileUtils::isAccessible(file, zvDirFileUtils::existence)) {
        return true;
    }
    m_report.addLeftOut(file, zvString("there is none: ") + without);
    return false;
}
