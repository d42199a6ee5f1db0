#include "zvFileServerCheck.h"

#include <algorithm>
#include <string>

#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDeliveredFile.h"
#include "zvDirFileUtils.h"
#include "zvFSClient.h"
#include "zvFileServerConnection.h"
#include "zvHomeCheckKind.h"
#include "zvHomeFile.h"
#include "zvJavaMachine.h"
#include "zvJavaStart.h"
#include "zvNearestName.h"
#include "zvProcessEnd.h"

namespace {

constexpr char server[] = "file server";
constexpr char client[] = "file server client";

zvString quoted(const zvString& text) { return "\"" + text + "\""; }

// The delivered client reads its defaults from this file, which has every key.
std::vector<zvString> keysOfDeliveredClient() {
    const std::string file = findDeliveredFile("../" ZV_DATA_FOLDER "/fileserver.properties",
                                               "../zvFileServerClient.j/fileserver.properties");
    std::string error;
    std::vector<zvString> names;
    for (const zvJavaProperties::Entry& key :
         zvJavaProperties::entriesOf(zvHomeFile::read(file.c_str(), error))) {
        names.push_back(key.name);
    }
    return names;
}

}  // namespace

zvFileServerCheck::zvFileServerCheck(const zvString& file, zvCheckReport& report)
    : m_strFile(file),
      m_report(report),
      m_bDelivered(zvCommonUtils::getEnvironmentalVariable("CLASSPATH").empty()) {}

void zvFileServerCheck::run(bool isOffline) {
    const zvProcessEnd unexpected([this] {
        addError(zvCheckPlace("Java"), zvHomeCheckKind::missingJava, zvJavaStart::endReason);
        return zvExitCode::fileTransfer;
    });
    const zvString refusal = zvJavaStart::prepare();
    if (!refusal.empty()) {
        addError(zvCheckPlace(client), zvHomeCheckKind::missingClass, refusal);
    }
    const bool hasClient = refusal.empty() && findJava() && findClient();
    Faults faults = hasClient ? askClient() : Faults();
    const bool isValid = m_bAsked && faults.empty();
    checkKeys(std::move(faults));
    if (isOffline) {
        m_report.addLeftOut(zvCheckPlace(server), "offline");
    } else if (!hasClient || (m_bDelivered && !isValid)) {
        m_report.addLeftOut(zvCheckPlace(server), "it cannot be reached with the faults above");
    } else {
        connect();
    }
}

bool zvFileServerCheck::findJava() {
    const zvResult started = zvJavaMachine::start();
    if (!started.isOk()) {
        addError(zvCheckPlace("Java"), zvHomeCheckKind::missingJava,
                 started.getMessage() + ": " + started.getAdditionalInformation());
        return false;
    }
    m_report.addGood(zvCheckPlace("Java"), started.getMessage());
    return true;
}

bool zvFileServerCheck::findClient() {
    std::vector<zvString> names = {"com.vantorel.ep.products.fsclient.FileServerClientFactory",
                                   "com.vantorel.ep.products.fsclient.FileServerClient"};
    if (m_bDelivered) {
        names.emplace_back("org.apache.commons.net.ftp.FTPClient");
    }
    zvString places;
    for (const zvString& name : names) {
        const zvResult found = zvJavaMachine::findClass(name);
        if (!found.isOk()) {
            addError(zvCheckPlace(client), zvHomeCheckKind::missingClass,
                     found.getMessage() + "; the class path is " +
                         quoted(zvCommonUtils::getEnvironmentalVariable("CLASSPATH")));
            return false;
        }
        if (places.find(found.getMessage()) < 0) {
            places += (places.empty() ? "" : ", ") + found.getMessage();
        }
    }
    m_report.addGood(zvCheckPlace(client), "its classes are in " + places);
    return true;
}

zvFileServerCheck::Faults zvFileServerCheck::askClient() {
    Faults faults;
    zvStringList found;
    try {
        m_bDelivered = zvFSClient::findFaults(zvDirFileUtils::nativePath(m_strFile), found);
    } catch (const zvException& exception) {
        faults[zvString()] = zvFileServerConnection::reasonOf(exception);
    }
    for (int i = 0; i + 1 < found.numStrings(); i += 2) {
        faults[found.getString(i)] = found.getString(i + 1);
    }
    m_bAsked = m_bDelivered;
    return faults;
}

void zvFileServerCheck::checkKeys(Faults faults) {
    if (m_bDelivered) {
        m_known = keysOfDeliveredClient();
    }
    std::string error;
    const std::string content = zvHomeFile::read(m_strFile, error);
    if (!error.empty()) {
        addError(m_strFile, zvHomeCheckKind::unreadable, error.c_str());
        return;
    }
    for (const zvJavaProperties::Entry& key : zvJavaProperties::entriesOf(content)) {
        checkKey(key, faults);
    }
    for (const auto& [key, reason] : faults) {
        addError(m_strFile, key.empty() ? zvHomeCheckKind::unreadable : zvHomeCheckKind::missingKey,
                 key.empty() ? reason : quoted(key) + ": " + reason);
    }
    if (!m_bAsked) {
        m_report.addLeftOut(m_strFile, m_bDelivered
                                           ? "the values, which the Java client knows"
                                           : "keys and values, which are those of the site's client");
    }
}

// Takes what it tells from `faults`.
void zvFileServerCheck::checkKey(const zvJavaProperties::Entry& key, Faults& faults) {
    const zvCheckPlace place(m_strFile, key.position);
    const auto fault = faults.find(key.name);
    const bool isKnown =
        m_known.empty() || std::find(m_known.begin(), m_known.end(), key.name) != m_known.end();
    const auto [first, isNew] = m_lines.emplace(key.name, key.position.line);
    if (!isNew) {
        addError(
            place, zvHomeCheckKind::repeatedKey,
            quoted(key.name) + " is in line " + zvString(first->second) + " already: the last one counts");
    } else if (!isKnown) {
        addError(
            place, zvHomeCheckKind::unknownKey,
            "there is no key " + quoted(key.name) + zvNearestName::suggestion(key.name, m_known).c_str());
    } else if (fault != faults.end()) {
        addError(place, zvHomeCheckKind::invalidValue, quoted(key.name) + ": " + fault->second);
    } else if (m_bDelivered) {
        m_report.addGood(place, m_bAsked ? key.name : key.name + ", a known key");
    }
    if (fault != faults.end()) {
        faults.erase(fault);
    }
}

void zvFileServerCheck::connect() {
    try {
        const zvFileServerConnection connection(m_strFile, *this);
        const bool isProbed = zvFSClient::getInstance()->probe();
        m_report.addGood(zvCheckPlace(server),
                         isProbed ? "login, and a file written and removed in the root"
                                  : "login; the site's client cannot write and remove a file for a trial");
    } catch (const zvException& exception) {
        addError(zvCheckPlace(server), zvHomeCheckKind::fileServer,
                 zvFileServerConnection::reasonOf(exception));
    }
}

void zvFileServerCheck::addError(const zvCheckPlace& place, std::string_view kind, const zvString& text) {
    m_report.addError(place, kind, text, zvExitCode::fileTransfer);
}

void zvFileServerCheck::notice(const zvString& text) { zvConsole::note(zvConsole::printable(text)); }
