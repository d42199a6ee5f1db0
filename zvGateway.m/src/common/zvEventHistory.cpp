#include "zvEventHistory.h"

#include <algorithm>
#include <iterator>
#include <nlohmann/json.hpp>

#include "zvProcess.h"
#include "zvSecrets.h"

using nlohmann::json;

namespace {

// An event with a hundred thousand files has less; a record without an end must not fill the memory.
constexpr std::size_t mostBytes = 100'000'000;

// What the lines of which a record has the most begin with, as the program writes them.
constexpr std::string_view detailPrefixes[] = {"{\"step\":", "{\"arrived\":", "{\"remoteDirectory\":"};

// An event keeps its identity when its root moves, and its directory is where the record was found.
constexpr const char* placeArguments[] = {"RootShadowDir", "EventShadowDir", "EventId"};

bool isDetail(std::string_view line) {
    return std::any_of(std::begin(detailPrefixes), std::end(detailPrefixes),
                       [line](std::string_view prefix) { return line.substr(0, prefix.size()) == prefix; });
}

template <class Value>
void take(const json& line, const char* key, Value& value) {
    const auto found = line.find(key);
    if (found != line.end()) {
        found->get_to(value);
    }
}

void takeIdentity(const json& line, zvEventHistory& history) {
    take(line, "eventId", history.eventId);
    take(line, "arguments", history.arguments);
    history.knowsSecrets = line.contains("secrets");
    take(line, "secrets", history.secrets);
}

void takeAttempt(const json& line, zvEventHistory& history) {
    take(line, "attempt", history.attempts);
    if (line.contains("begin")) {
        take(line, "begin", history.begin);
        take(line, "host", history.host);
        take(line, "pid", history.pid);
        history.isDryRun = line.value("dryRun", false);
        history.firstBegin = history.firstBegin.empty() ? history.begin : history.firstBegin;
        history.steps.clear();
        history.end.clear();
        history.exitCode = 0;
        history.failedStep = history.failedSubject = history.reason = "";
    }
    take(line, "end", history.end);
    take(line, "exitCode", history.exitCode);
    if (const auto failure = line.find("failure"); failure != line.end()) {
        take(*failure, "step", history.failedStep);
        take(*failure, "subject", history.failedSubject);
        take(*failure, "reason", history.reason);
    }
}

void takeRemoteDirectory(const json& line, zvEventHistory& history) {
    const std::string state = line.value("remoteDirectory", "");
    const auto* const words = std::begin(zvEventHistory::remoteDirectoryWords);
    const auto* const word = std::find(words, std::end(zvEventHistory::remoteDirectoryWords), state);
    if (word != std::end(zvEventHistory::remoteDirectoryWords)) {
        history.remoteDirectory = static_cast<zvEventHistory::RemoteDirectory>(word - words);
    }
}

}  // namespace

bool zvEventHistory::isPlace(const zvString& key) {
    return std::any_of(std::begin(placeArguments), std::end(placeArguments),
                       [&key](const char* place) { return key == place; });
}

bool zvEventHistory::isRecorded(const zvString& key, const zvString& value) {
    return !isPlace(key) && zvSecrets::keyIn(key) == nullptr && zvSecrets::keyIn(value) == nullptr;
}

std::string zvEventHistory::read(const std::filesystem::path& file, Detail detail, std::error_code& error) {
    const std::filesystem::file_status status = zvProcess::statusOf(file, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        return "it is no regular file";
    }
    std::string content;
    const int descriptor = zvProcess::openRegularFile(file, error);
    if (!error) {
        error = zvProcess::readToEnd(descriptor, mostBytes, content);
    }
    if (error) {
        return "";
    }
    std::size_t from = 0;
    for (std::size_t end = 0; (end = content.find('\n', from)) != std::string::npos; from = end + 1) {
        const std::string_view line(content.data() + from, end - from);
        if (detail == Detail::state && isDetail(line)) {
            continue;
        }
        std::string fault = understand(line, detail);
        if (!fault.empty()) {
            return fault;
        }
    }
    hasTornEnd = from < content.size();
    return "";
}

// Lines and members that a later version may add are passed over.
std::string zvEventHistory::understand(std::string_view line, Detail detail) {
    const json object = json::parse(line, nullptr, false);
    if (!object.is_object()) {
        return "";
    }
    try {
        if (object.value("record", 0) > formatVersion) {
            return "it was written by a later version of the program";
        }
        if (object.contains("eventId")) {
            takeIdentity(object, *this);
        }
        if (object.contains("attempt")) {
            takeAttempt(object, *this);
        }
        take(object, "posted", isPosted);
        take(object, "object", this->object);
        if (detail == Detail::all) {
            if (object.contains("arrived")) {
                arrivals[object["arrived"].get<std::string>()] = object.value("stamp", "");
            }
            if (object.contains("step")) {
                steps.push_back({object["step"].get<std::string>(), object.value("outcome", ""),
                                 object.value("detail", "")});
            }
            takeRemoteDirectory(object, *this);
        }
    } catch (const json::exception&) {
        return "it has a line that is not the program's";
    }
    return "";
}
