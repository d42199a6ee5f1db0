#include "zvEventRecord.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>
#include <system_error>

#include "zvConsole.h"
#include "zvFailure.h"
#include "zvFileStamp.h"
#include "zvNativePath.h"
#include "zvProcess.h"
#include "zvSecrets.h"
#include "zvUtcTime.h"
#include "zvUtf8Text.h"

namespace fs = std::filesystem;
using nlohmann::ordered_json;

namespace {

// How a file is named in the record, however its path was given.
std::string nameOf(const zvString& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(toNativePath(path), error);
    return zvUtf8::encode(absolute.lexically_normal().string().c_str());
}

// Texts for people are in the locale's encoding.
std::string toUtf8(const std::string& text) { return zvUtf8::encode(text.c_str()); }

std::string messageOf(const std::error_code& error) { return error ? zvProcess::messageOf(error) : ""; }

zvStepFailure failure(const fs::path& file, const std::string& reason) {
    return {zvConsole::printable(file.string().c_str()), reason};
}

}  // namespace

zvEventRecord::Given zvEventRecord::givenBy(const zvEventArguments& arguments) {
    Given given;
    arguments.forEach([&given](const zvString& key, const zvString& value) {
        if (zvEventHistory::isRecorded(key, value)) {
            given.arguments.emplace(zvUtf8::encode(key), zvUtf8::encode(value));
        } else if (!zvEventHistory::isPlace(key)) {
            given.secrets.push_back(zvUtf8::encode(zvSecrets::maskedKey(key)));
        }
    });
    std::sort(given.secrets.begin(), given.secrets.end());
    return given;
}

zvString zvEventRecord::fileIn(const zvString& directory, const zvString& name) {
    return directory + "\\" + name + zvEventHistory::fileSuffix;
}

zvString zvEventRecord::eventIdIn(const zvString& file) {
    zvEventHistory history;
    std::error_code error;
    history.read(toNativePath(file), zvEventHistory::Detail::state, error);
    return fromUtf8(history.eventId);
}

zvEventRecord::zvEventRecord(const zvString& file) : m_file(toNativePath(file)) {
    std::error_code error;
    const zvProcess::Lock lock = m_lock.take(m_file, error);
    if (lock == zvProcess::Lock::heldByAnother) {
        zvStepFailure held = failure(m_file, "another process is running this event");
        held.isHeldByAnother = true;
        throw zvStepFailure(held);
    }
    if (lock == zvProcess::Lock::refused) {
        throw failure(m_file, zvProcess::messageOf(error));
    }
    read();
}

void zvEventRecord::read() {
    std::error_code error;
    const std::string fault = m_history.read(m_file, zvEventHistory::Detail::all, error);
    if (error || !fault.empty()) {
        throw failure(m_file, error ? zvProcess::messageOf(error) : fault);
    }
    m_strEventId = fromUtf8(m_history.eventId);
}

std::vector<std::string> zvEventRecord::differencesFrom(const Given& given) const {
    std::vector<std::string> differences;
    if (m_strEventId.empty()) {
        return differences;
    }
    const auto valueIn = [](const zvEventHistory::Arguments& all, const std::string& key) {
        const auto found = all.find(key);
        return found == all.end() ? std::string("absent")
                                  : "\"" + zvConsole::printableUtf8(found->second) + "\"";
    };
    zvEventHistory::Arguments keys = m_history.arguments;
    keys.insert(given.arguments.begin(), given.arguments.end());
    for (const auto& [key, value] : keys) {
        const std::string recorded = valueIn(m_history.arguments, key);
        const std::string now = valueIn(given.arguments, key);
        if (recorded != now) {
            differences.push_back(zvConsole::printableUtf8(key)
                                      .append(" was ")
                                      .append(recorded)
                                      .append(" and is ")
                                      .append(now));
        }
    }
    addSecretDifferences(given.secrets, differences);
    return differences;
}

// Their values are not recorded.
void zvEventRecord::addSecretDifferences(const std::vector<std::string>& given,
                                         std::vector<std::string>& differences) const {
    if (!m_history.knowsSecrets) {
        return;
    }
    const std::set<std::string> before(m_history.secrets.begin(), m_history.secrets.end());
    const std::set<std::string> now(given.begin(), given.end());
    for (const std::string& name : before) {
        if (now.count(name) == 0) {
            differences.push_back("the secret " + zvConsole::printableUtf8(name) +
                                  " was given and is absent: give it again, as with --secrets");
        }
    }
    for (const std::string& name : now) {
        if (before.count(name) == 0) {
            differences.push_back("the secret " + zvConsole::printableUtf8(name) +
                                  " was absent and is given");
        }
    }
}

void zvEventRecord::beginAttempt(const zvString& eventId, const Given& given, bool isDryRun) {
    if (m_strEventId.empty()) {
        m_strEventId = eventId;
        append({{"record", zvEventHistory::formatVersion},
                {"eventId", zvUtf8::encode(eventId)},
                {"arguments", given.arguments},
                {"secrets", given.secrets}},
               false);
    }
    ++m_history.attempts;
    ordered_json line = {{"attempt", m_history.attempts},
                         {"begin", zvUtcTime::now()},
                         {"host", zvProcess::hostName()},
                         {"pid", zvProcess::id()}};
    if (isDryRun) {
        line["dryRun"] = true;
    }
    append(line, false);
    requireWritten();
}

void zvEventRecord::secureIdentity() {
    if (!m_bIdentitySecured) {
        m_strFault = m_strFault.empty() ? messageOf(zvProcess::flushToDisk(m_file)) : m_strFault;
        requireWritten();
        m_bIdentitySecured = true;
    }
}

void zvEventRecord::setObject(const std::string& object) {
    m_history.object = toUtf8(object);
    append({{"object", m_history.object}}, false);
}

std::string zvEventRecord::object() const { return zvConsole::printableUtf8(m_history.object); }

void zvEventRecord::setOutcome(const std::string& step, const std::string& outcome,
                               const std::string& detail) {
    append({{"step", step}, {"outcome", outcome}, {"detail", toUtf8(detail)}}, false);
}

void zvEventRecord::endAttempt(const zvProgramFailure* failure) {
    ordered_json line = {{"attempt", m_history.attempts}, {"end", zvUtcTime::now()}, {"exitCode", 0}};
    if (failure != nullptr) {
        line["exitCode"] = static_cast<int>(failure->exitCode);
        line["failure"] = {{"step", failure->step},
                           {"subject", toUtf8(failure->subject)},
                           {"reason", toUtf8(failure->reason)}};
    }
    // The server's answer is on the disk already.
    append(line, failure != nullptr);
}

bool zvEventRecord::hasArrived(const zvString& path) const {
    const auto found = m_history.arrivals.find(nameOf(path));
    if (found == m_history.arrivals.end()) {
        return false;
    }
    const std::string stamp = fileStamp(toNativePath(path));
    return stamp.empty() || stamp == found->second;
}

void zvEventRecord::beginFile(const zvString& path) { m_strSending = fileStamp(toNativePath(path)); }

void zvEventRecord::setArrived(const zvString& path, bool isDurable) {
    const std::string name = nameOf(path);
    m_history.arrivals[name] = m_strSending;
    append({{"arrived", name}, {"stamp", m_strSending}}, isDurable);
}

void zvEventRecord::setRemoteDirectory(RemoteDirectory state) {
    m_history.remoteDirectory = state;
    // Without its claim, which a power failure at this moment may lose, an empty directory is refused.
    append({{"remoteDirectory", zvEventHistory::remoteDirectoryWords[static_cast<int>(state)]}},
           state == RemoteDirectory::own);
}

void zvEventRecord::setPosted() {
    m_history.isPosted = true;
    append({{"posted", true}, {"at", zvUtcTime::now()}}, true);
}

void zvEventRecord::append(const ordered_json& line, bool isDurable) {
    const std::string text = (m_history.hasTornEnd ? "\n" : "") +
                             line.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
    const std::error_code error = zvProcess::appendToFile(m_file, text, isDurable);
    m_history.hasTornEnd = static_cast<bool>(error);
    m_bIdentitySecured = m_bIdentitySecured || (isDurable && !error);
    if (error && m_strFault.empty()) {
        m_strFault = zvProcess::messageOf(error);
    }
}

void zvEventRecord::requireWritten() const {
    if (!m_strFault.empty()) {
        throw failure(m_file, m_strFault);
    }
}
