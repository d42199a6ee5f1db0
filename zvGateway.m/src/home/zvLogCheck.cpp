#include "zvLogCheck.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

#include "zvCharString.h"
#include "zvCommonUtils.h"
#include "zvDirFileUtils.h"
#include "zvFindingList.h"
#include "zvHomeCheckKind.h"
#include "zvHomeFile.h"
#include "zvLogger.h"
#include "zvNativePath.h"
#include "zvProcess.h"
#include "zvTemporaryFolder.h"

namespace fs = std::filesystem;

namespace {

// The parameters of appenders that are paths of files.
constexpr const char* fileParameters[] = {"File", "ActiveFileName", "FileNamePattern"};

const char* fileParameter(const zvString& name) {
    for (const char* const known : fileParameters) {
        if (name.equalsIgnoreCase(known)) {
            return known;
        }
    }
    return nullptr;
}

// With the variables of the environment, as the logging library replaces them.
zvString expanded(const zvString& text) {
    zvString result;
    int copied = 0;
    for (int begin = text.find("${"); begin >= 0; begin = text.find("${", copied)) {
        const int end = text.find("}", begin);
        if (end < 0) {
            break;
        }
        result += text.substr(copied, begin - copied) +
                  zvCommonUtils::getEnvironmentalVariable(text.substr(begin + 2, end - begin - 2));
        copied = end + 1;
    }
    return result + text.substr(copied, text.size() - copied);
}

// Loads the file without its document type, as the logging library does, which reads no declarations.
void load(zvXMLParser& parser, const zvString& file) {
    std::string error;
    std::string content = zvHomeFile::read(file, error);
    const std::size_t begin = content.find("<!DOCTYPE");
    const std::size_t end = content.find_first_of("[>", begin);
    if (!error.empty() || begin == std::string::npos || end == std::string::npos || content[end] == '[') {
        parser.loadXMLFromString(file, true);
        return;
    }
    // Lines stay where they are.
    std::replace_if(
        content.begin() + static_cast<std::ptrdiff_t>(begin),
        content.begin() + static_cast<std::ptrdiff_t>(end) + 1, [](char c) { return c != '\n'; }, ' ');
    parser.loadXMLFromString(content.c_str(), false);
}

// Why lines cannot be appended to the file, which need not exist; empty if they can. Nothing is made.
std::string appendError(const fs::path& file) {
    std::error_code error;
    if (fs::is_regular_file(file, error)) {
        error = zvProcess::appendToFile(file, "", false);
        return error ? zvProcess::messageOf(error) : "";
    }
    if (fs::is_directory(file, error)) {
        return std::make_error_code(std::errc::is_a_directory).message();
    }
    fs::path folder = fs::absolute(file, error).parent_path();
    while (!fs::exists(folder, error) && folder.has_relative_path()) {
        folder = folder.parent_path();
    }
    if (!fs::is_directory(folder, error)) {
        return folder.string() + " is no folder";
    }
    const zvString reason = zvDirFileUtils::getAccessError(folder.string().c_str(), zvDirFileUtils::writable);
    return reason.empty() ? "" : folder.string() + ": " + zvCharString(reason).data();
}

// Lets the logging library begin with the home's configuration; false if it refuses. The variable that names
// the home is as before afterwards.
bool startLog(const std::string& home) {
    const std::string variable = zvCharString(zvCommonUtils::getGatewayHomeEnvVariable()).data();
    const std::string before = zvCharString(zvCommonUtils::getEnvironmentalVariable(variable.c_str())).data();
    zvLogger::destroyInstance();
    zvProcess::setEnvironment(variable.c_str(), home.c_str());
    const zvLogger* const logger = zvLogger::getInstance();
    const bool isReady = logger != nullptr && logger->isReady();
    zvProcess::setEnvironment(variable.c_str(), before.c_str());
    return isReady;
}

std::unique_ptr<zvXERCESDOMNODEList> elements(const zvXMLParser& parser, xercesc::DOMElement* in,
                                              const char* name) {
    return std::unique_ptr<zvXERCESDOMNODEList>(parser.getChildElementsByTagName(in, name));
}

// Appenders that no logger refers to are not opened.
bool isReferredTo(const zvXMLParser& parser, const zvString& name) {
    const auto references = elements(parser, parser.getRootElement(), "appender-ref");
    for (int i = 0; i < references->numDOMNode(); ++i) {
        zvString referred;
        if (parser.getAttribute(references->getDOMNode(i), "ref", referred) && referred == name) {
            return true;
        }
    }
    return false;
}

}  // namespace

void zvLogCheck::keepSilent() { startLog("no-gateway-home"); }

void zvLogCheck::run() {
    zvFindingList findings;
    zvXMLParser parser(&findings);
    load(parser, m_strFile);
    for (const zvFinding& finding : findings.findings()) {
        m_report.addFault({m_strFile, finding.position}, finding, zvExitCode::gatewayHome);
    }
    if (parser.getRootElement() == nullptr || !findings.findings().empty()) {
        return;
    }
    const zvTemporaryFolder folder;
    fs::create_directory(folder.path() / "config");
    const zvString home = folder.path().string().c_str();
    const auto appenders = elements(parser, parser.getRootElement(), "appender");
    for (int i = 0; i < appenders->numDOMNode(); ++i) {
        auto* const appender = static_cast<xercesc::DOMElement*>(appenders->getDOMNode(i));
        checkAppender(parser, appender, home);
    }
    askLibrary(parser, home);
}

// Its files are looked at, and then replaced by others in the folder.
void zvLogCheck::checkAppender(zvXMLParser& parser, xercesc::DOMElement* appender, const zvString& folder) {
    zvString name;
    parser.getAttribute(appender, "name", name);
    const bool isUsed = isReferredTo(parser, name);
    const auto parameters = elements(parser, appender, "param");
    for (int i = 0; i < parameters->numDOMNode(); ++i) {
        xercesc::DOMNode* const parameter = parameters->getDOMNode(i);
        zvString key;
        zvString value;
        parser.getAttribute(parameter, "name", key);
        parser.getAttribute(parameter, "value", value);
        const char* const known = fileParameter(key);
        if (known == nullptr) {
            continue;
        }
        if (isUsed && known != fileParameters[2]) {
            checkLogFile(expanded(value), parser.getPosition(parameter));
        }
        parser.changeCurrentNode(parameter);
        parser.addAttribute("value", folder + "/" + zvString(++m_logFiles) +
                                         (known == fileParameters[2] ? "-%i.log" : ".log"));
    }
}

void zvLogCheck::checkLogFile(const zvString& path, zvTextPosition position) {
    const std::string error = appendError(toNativePath(path));
    if (error.empty()) {
        m_report.addGood({m_strFile, position},
                         "lines can be appended to " + zvDirFileUtils::nativePath(path));
    } else {
        m_report.addError({m_strFile, position}, zvHomeCheckKind::unwritableLog,
                          zvDirFileUtils::nativePath(path) + ": " + error.c_str(), zvExitCode::gatewayHome);
    }
}

void zvLogCheck::askLibrary(zvXMLParser& parser, const zvString& home) {
    const zvString copy = home + "\\config\\log4cxx.xml";
    const bool isTaken = parser.writeTreeToFile(copy, "") && startLog(zvCharString(home).data());
    keepSilent();
    if (isTaken) {
        m_report.addGood(m_strFile, "the logging library takes it");
    } else {
        m_report.addError(m_strFile, zvHomeCheckKind::refusedLog, "the logging library refuses it",
                          zvExitCode::gatewayHome);
    }
}
