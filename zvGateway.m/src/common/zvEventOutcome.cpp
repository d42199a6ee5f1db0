#include "zvEventOutcome.h"

#include <cmath>
#include <nlohmann/json.hpp>

namespace {

constexpr const char* kindWords[] = {"arrived", "arrived-before", "dry-run", "stopped", "held-by-another"};

std::string quoted(const std::string& value) {
    if (value.find_first_of(" \"=") == std::string::npos) {
        return value;
    }
    std::string result = "\"";
    for (const char c : value) {
        result.append(c == '"' || c == '\\' ? "\\" : "").append(1, c);
    }
    return result + "\"";
}

}  // namespace

void zvEventOutcome::setFailure(const zvProgramFailure& failure) {
    kind = failure.isHeldByAnother ? Kind::heldByAnother : Kind::stopped;
    step = failure.step;
    subject = failure.subject;
    reason = failure.reason;
    exitCode = failure.exitCode;
}

std::string zvEventOutcome::text() const {
    std::string line = std::string("event=") + kindWords[static_cast<int>(kind)];
    const auto add = [&line](const char* key, const std::string& value) {
        if (!value.empty()) {
            line.append(" ").append(key).append("=").append(quoted(value));
        }
    };
    add("id", eventId);
    add("directory", directory);
    add("name", event);
    add("object", object);
    add("step", step);
    add("reason", subject.empty() || reason.empty() ? subject + reason : subject + ": " + reason);
    if (exitCode != zvExitCode::success) {
        add("exit", std::to_string(static_cast<int>(exitCode)));
    }
    add("ms", std::to_string(std::lround(milliseconds)));
    return line;
}

nlohmann::ordered_json zvEventOutcome::json() const {
    nlohmann::ordered_json json = {{"outcome", kindWords[static_cast<int>(kind)]}};
    const auto add = [&json](const char* key, const std::string& value) {
        if (!value.empty()) {
            json[key] = value;
        }
    };
    add("eventId", eventId);
    add("directory", directory);
    add("event", event);
    add("object", object);
    json["exitCode"] = static_cast<int>(exitCode);
    json["milliseconds"] = std::lround(milliseconds);
    if (exitCode != zvExitCode::success) {
        json["failure"] = {{"step", step}, {"subject", subject}, {"reason", reason}};
    }
    return json;
}
