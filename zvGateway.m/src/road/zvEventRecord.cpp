#include "zvEventRecord.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>
#include <system_error>

#include "zvConsole.h"
#include "zvFailure.h"
#include "zvNativePath.h"
#include "zvProcess.h"
#include "zvSecrets.h"
#include "zvUtf8.h"

namespace fs = std::filesystem;
using nlohmann::ordered_json;

namespace {

constexpr int formatVersion = 1;

// An event keeps its identity when its root moves, and its directory is where the record was found.
constexpr const char* placeArguments[] = {"RootShadowDir", "EventShadowDir", "EventId"};

constexpr const char* remoteDirectoryWords[] = {"unknown", "claimed", "own"};

bool isPlace(const zvString& key) {
    for (const char* const place : placeArguments) {
        if (key == place) {
            return true;
        }
    }
    return false;
}

// The size and the time of the last change; empty for a file that is not there.
std::string stampOf(const fs::path& path) {
    std::error_code error;
    const auto size = fs::file_size(path, error);
    if (error) {
        return "";
    }
    const auto time = fs::last_write_time(path, error);
    return error ? "" : std::to_string(size) + " " + std::to_string(time.time_since_epoch().count());
}

// How a file is named in the record, however its path was given.
std::string nameOf(const zvString& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(toNativePath(path), error);
    return zvUtf8::encode(absolute.lexically_normal().string().c_str());
}

// As in "2026-11-25T10:15:00.123Z".
std::string now() {
    const auto time = std::chrono::system_clock::now();
    const auto seconds = std::chrono::system_clock::to_time_t(time);
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count() % 1000;
    std::ostringstream text;
    text << std::put_time(std::gmtime(&seconds), "%FT%T") << '.' << std::setw(3) << std::setfill('0')
         << milliseconds << 'Z';
    return text.str();
}

// Texts for people are in the locale's encoding.
std::string toUtf8(const std::string& text) { return zvUtf8::encode(text.c_str()); }

zvString fromUtf8(const std::string& text) {
    zvString decoded;
    static_cast<void>(zvUtf8::decode(text, decoded));
    return decoded;
}

std::string printable(const std::string& utf8) { return zvConsole::printable(fromUtf8(utf8)); }

zvStepFailure failure(const fs::path& file, const std::string& reason) {
    return {zvConsole::printable(file.string().c_str()), reason};
}

}  // namespace

zvEventRecord::Arguments zvEventRecord::argumentsOf(const zvEventArguments& arguments) {
    Arguments result;
    arguments.forEach([&result](const zvString& key, const zvString& value) {
        const bool isSecret = zvSecrets::keyIn(key) != nullptr || zvSecrets::keyIn(value) != nullptr;
        if (!isSecret && !isPlace(key)) {
            result.emplace(zvUtf8::encode(key), zvUtf8::encode(value));
        }
    });
    return result;
}

zvString zvEventRecord::fileIn(const zvString& directory, const zvString& name) {
    return directory + "\\" + name + "_record.jsonl";
}

zvString zvEventRecord::eventIdIn(const zvString& file) {
    std::ifstream stream(toNativePath(file), std::ios::binary);
    std::string line;
    std::getline(stream, line);
    const auto json = nlohmann::json::parse(line, nullptr, false);
    const auto id = json.is_object() ? json.find("eventId") : json.end();
    return id != json.end() && id->is_string() ? fromUtf8(id->get<std::string>()) : zvString();
}

zvEventRecord::zvEventRecord(const zvString& file) : m_file(toNativePath(file)) {
    std::error_code error;
    const zvProcess::Lock lock = zvProcess::lockFile(m_file, error);
    if (lock == zvProcess::Lock::heldByAnother) {
        throw failure(m_file, "another process is running this event");
    }
    if (lock == zvProcess::Lock::refused) {
        throw failure(m_file, error.message());
    }
    read();
}

void zvEventRecord::read() {
    std::ifstream stream(m_file, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        m_bTornEnd = stream.eof();
        if (!m_bTornEnd) {
            understand(line);
        }
    }
    if (!stream.is_open() || stream.bad()) {
        throw failure(m_file, "it cannot be read");
    }
}

// Lines and members that a later version may add are passed over.
void zvEventRecord::understand(const std::string& line) {
    const auto json = nlohmann::json::parse(line, nullptr, false);
    if (!json.is_object()) {
        return;
    }
    try {
        if (json.value("record", 0) > formatVersion) {
            throw failure(m_file, "it was written by a later version of the program");
        }
        if (json.contains("eventId")) {
            m_strEventId = fromUtf8(json["eventId"].get<std::string>());
        }
        m_arguments = json.value("arguments", m_arguments);
        m_attempt = json.value("attempt", m_attempt);
        m_bPosted = json.value("posted", m_bPosted);
        if (json.contains("arrived")) {
            m_arrivals[json["arrived"].get<std::string>()] = json.value("stamp", "");
        }
        const std::string state = json.value("remoteDirectory", "");
        const auto* const word =
            std::find(std::begin(remoteDirectoryWords), std::end(remoteDirectoryWords), state);
        if (word != std::end(remoteDirectoryWords)) {
            m_remoteDirectory = static_cast<RemoteDirectory>(word - std::begin(remoteDirectoryWords));
        }
    } catch (const nlohmann::json::exception&) {
        throw failure(m_file, "it has a line that is not the program's");
    }
}

std::vector<std::string> zvEventRecord::differencesFrom(const Arguments& arguments) const {
    std::vector<std::string> differences;
    if (m_strEventId.empty()) {
        return differences;
    }
    const auto valueIn = [](const Arguments& all, const std::string& key) {
        const auto found = all.find(key);
        return found == all.end() ? std::string("absent") : "\"" + printable(found->second) + "\"";
    };
    Arguments keys = m_arguments;
    keys.insert(arguments.begin(), arguments.end());
    for (const auto& [key, value] : keys) {
        const std::string recorded = valueIn(m_arguments, key);
        const std::string given = valueIn(arguments, key);
        if (recorded != given) {
            differences.push_back(
                printable(key).append(" was ").append(recorded).append(" and is ").append(given));
        }
    }
    return differences;
}

void zvEventRecord::beginAttempt(const zvString& eventId, const Arguments& arguments) {
    if (m_strEventId.empty()) {
        m_strEventId = eventId;
        m_arguments = arguments;
        append({{"record", formatVersion}, {"eventId", zvUtf8::encode(eventId)}, {"arguments", arguments}},
               false);
    }
    ++m_attempt;
    append(
        {{"attempt", m_attempt}, {"begin", now()}, {"host", zvProcess::hostName()}, {"pid", zvProcess::id()}},
        true);
    requireWritten();
}

void zvEventRecord::setOutcome(const std::string& step, const std::string& outcome,
                               const std::string& detail) {
    append({{"step", step}, {"outcome", outcome}, {"detail", toUtf8(detail)}}, false);
}

void zvEventRecord::endAttempt(const zvProgramFailure* failure) {
    ordered_json line = {{"attempt", m_attempt}, {"end", now()}, {"exitCode", 0}};
    if (failure != nullptr) {
        line["exitCode"] = static_cast<int>(failure->exitCode);
        line["failure"] = {{"step", failure->step},
                           {"subject", toUtf8(failure->subject)},
                           {"reason", toUtf8(failure->reason)}};
    }
    append(line, true);
}

bool zvEventRecord::hasArrived(const zvString& path) const {
    const auto found = m_arrivals.find(nameOf(path));
    if (found == m_arrivals.end()) {
        return false;
    }
    const std::string stamp = stampOf(toNativePath(path));
    return stamp.empty() || stamp == found->second;
}

void zvEventRecord::beginFile(const zvString& path) { m_strSending = stampOf(toNativePath(path)); }

void zvEventRecord::setArrived(const zvString& path) {
    const std::string name = nameOf(path);
    m_arrivals[name] = m_strSending;
    append({{"arrived", name}, {"stamp", m_strSending}}, true);
}

void zvEventRecord::setRemoteDirectory(RemoteDirectory state) {
    m_remoteDirectory = state;
    append({{"remoteDirectory", remoteDirectoryWords[static_cast<int>(state)]}}, true);
}

void zvEventRecord::setPosted() {
    m_bPosted = true;
    append({{"posted", true}, {"at", now()}}, true);
}

void zvEventRecord::append(const ordered_json& line, bool isDurable) {
    const std::string text =
        (m_bTornEnd ? "\n" : "") + line.dump(-1, ' ', false, ordered_json::error_handler_t::replace) + "\n";
    const std::error_code error = zvProcess::appendToFile(m_file, text, isDurable);
    m_bTornEnd = static_cast<bool>(error);
    if (error && m_strFault.empty()) {
        m_strFault = error.message();
    }
}

void zvEventRecord::requireWritten() const {
    if (!m_strFault.empty()) {
        throw failure(m_file, m_strFault);
    }
}
