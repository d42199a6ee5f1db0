#include "zvRoadReport.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "zvConsole.h"
#include "zvException.h"
#include "zvFailureJson.h"
#include "zvInterruption.h"
#include "zvShownArguments.h"

namespace {

double now() {
    using milliseconds = std::chrono::duration<double, std::milli>;
    return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

double toMicroseconds(double milliseconds) {
    constexpr double thousand = 1000;
    return std::round(milliseconds * thousand) / thousand;
}

std::string column(const std::string& text, int width) {
    std::string result = text;
    result.resize(std::max(result.size(), static_cast<std::size_t>(width)), ' ');
    return result;
}

std::string duration(double milliseconds) {
    constexpr std::size_t width = 40;
    char text[width];
    std::snprintf(text, width, "%9.1f ms", milliseconds);
    return text;
}

// Texts from outside are UTF-8 as a rule; one that is not must not cost the whole answer.
void printAnswer(const nlohmann::ordered_json& json) {
    zvConsole::print(json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

const char* textOf(zvStepOutcome::Kind kind) {
    return kind == zvStepOutcome::Kind::done ? "done" : "left out";
}

}  // namespace

zvRoadReport::zvRoadReport() : m_start(now()) {}

void zvRoadReport::take(const char* name, zvExitCode exitCode, const std::function<zvStepOutcome()>& step) {
    m_running = {name, exitCode, now()};
    try {
        const zvStepOutcome outcome = step();
        m_steps.push_back(
            {name, textOf(outcome.kind), zvShownArguments::masked(outcome.detail), now() - m_running.start});
    } catch (const zvStepFailure& failure) {
        fail({exitCode, name, failure.subject, failure.reason, failure.isHeldByAnother});
    } catch (const zvInterruption& interruption) {
        constexpr int signalBase = 128;  // as shells count
        fail({static_cast<zvExitCode>(signalBase + interruption.signal), name, "interrupted",
              "by signal " + std::to_string(interruption.signal)});
    } catch (const zvException& exception) {
        fail({zvExitCode::unexpected, name, "unexpected",
              zvConsole::printable(exception.getResult().getMessage())});
    } catch (const std::exception& exception) {
        fail({zvExitCode::unexpected, name, "unexpected", zvConsole::printable(exception.what())});
    }
}

zvProgramFailure zvRoadReport::stop(const std::string& subject, const std::string& reason) {
    keep({m_running.exitCode, m_running.name, subject, reason});
    return *m_failure;
}

void zvRoadReport::fail(zvProgramFailure failure) {
    keep(std::move(failure));
    throw zvProgramFailure(*m_failure);
}

void zvRoadReport::keep(zvProgramFailure failure) {
    failure.subject = zvShownArguments::masked(failure.subject);
    failure.reason = zvShownArguments::masked(failure.reason);
    m_steps.push_back(
        {failure.step, "failed", failure.subject + ": " + failure.reason, now() - m_running.start});
    m_failure = std::move(failure);
}

void zvRoadReport::setFact(const char* key, const char* label, std::string value) {
    m_facts.push_back({key, label, zvShownArguments::masked(std::move(value))});
}

double zvRoadReport::milliseconds() const { return now() - m_start; }

void zvRoadReport::print() const {
    constexpr int outcomeWidth = 9;
    zvConsole::step("summary");
    for (const Step& step : m_steps) {
        zvConsole::fact(
            step.name, column(step.outcome, outcomeWidth) + duration(step.milliseconds) + "  " + step.detail);
    }
    zvConsole::fact("total", column("", outcomeWidth) + duration(milliseconds()));
    for (const Fact& fact : m_facts) {
        if (!fact.label.empty()) {
            zvConsole::fact(fact.label, fact.value);
        }
    }
}

void zvRoadReport::printJson(zvExitCode exitCode) const {
    nlohmann::ordered_json json;
    for (const Fact& fact : m_facts) {
        if (!fact.key.empty()) {
            json[fact.key] = fact.value;
        }
    }
    json["steps"] = nlohmann::ordered_json::array();
    for (const Step& step : m_steps) {
        json["steps"].push_back({{"name", step.name},
                                 {"outcome", step.outcome},
                                 {"milliseconds", toMicroseconds(step.milliseconds)},
                                 {"detail", step.detail}});
    }
    json["files"] = nlohmann::ordered_json::array();
    for (const File& file : m_files) {
        json["files"].push_back({{"path", file.path},
                                 {"outcome", file.outcome},
                                 {"bytes", file.bytes},
                                 {"milliseconds", file.milliseconds}});
    }
    json["milliseconds"] = toMicroseconds(milliseconds());
    json["exitCode"] = static_cast<int>(exitCode);
    if (m_failure) {
        json["failure"] = zvFailureJson::of(*m_failure);
    }
    printAnswer(json);
}

void zvRoadReport::printJson(const zvProgramFailure& failure) {
    printAnswer({{"exitCode", static_cast<int>(failure.exitCode)}, {"failure", zvFailureJson::of(failure)}});
}
