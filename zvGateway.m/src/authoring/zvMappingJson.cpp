#include "zvMappingJson.h"

#include <nlohmann/json.hpp>

#include "zvCfgTransitionPath.h"
#include "zvFailureJson.h"
#include "zvMappingAccount.h"
#include "zvUtf8.h"

using nlohmann::ordered_json;

namespace {

using Account = zvMappingAccount;

// In the order of zvMappingAccount::Verdict.
constexpr const char* verdicts[] = {"taken", "does-not-hold", "cannot-be-evaluated", "not-asked"};

ordered_json toJson(const zvString& text) { return zvUtf8::encode(text); }

ordered_json typesOf(const zvCfgObject& object) {
    ordered_json json = {{"localType", toJson(object.getLocalCustomType())},
                         {"remoteType", toJson(object.getRemoteCustomType())}};
    if (object.getPosition().line > 0) {
        json["line"] = object.getPosition().line;
    }
    return json;
}

// A flat list: a tree may be nested more deeply than those who read or write JSON stand.
ordered_json toJson(const zvConditionExplanation::Part& part) {
    ordered_json json = {{"depth", part.depth}, {"text", toJson(part.text)}};
    if (!part.values.empty()) {
        for (const std::optional<zvString>& value : part.values) {
            json["values"].push_back(value.has_value() ? toJson(*value) : ordered_json());
        }
    }
    json["outcome"] = part.outcome.has_value() ? ordered_json(*part.outcome) : ordered_json();
    return json;
}

ordered_json toJson(const Account::Candidate& candidate) {
    ordered_json json = typesOf(*candidate.object);
    json["verdict"] = verdicts[static_cast<std::size_t>(candidate.verdict)];
    if (!candidate.reason.empty()) {
        json["reason"] = toJson(candidate.reason);
    }
    for (const zvConditionExplanation::Part& part : candidate.rule) {
        json["rule"].push_back(toJson(part));
    }
    return json;
}

ordered_json toJson(const Account::Attribute& attribute, bool explains) {
    ordered_json json = {{"name", toJson(attribute.name)},
                         {"value", toJson(attribute.value)},
                         {"default", attribute.isDefault}};
    if (explains) {
        json["type"] = attribute.type.empty() ? ordered_json() : toJson(attribute.type);
    }
    if (explains && !attribute.isDefault) {
        json["from"] = toJson(attribute.from);
        if (attribute.comparedAs.has_value()) {
            json["comparedAs"] = toJson(*attribute.comparedAs);
        }
    }
    return json;
}

ordered_json toJson(const zvCfgLcmState& state) {
    return {{"local", toJson(state.localName())}, {"remote", toJson(state.remoteName())}};
}

ordered_json toJson(const zvCfgTransitionPath& path) {
    ordered_json json = {{"from", toJson(*path.getStateAt(0))}, {"steps", ordered_json::array()}};
    for (int i = 0; i < path.size(); ++i) {
        json["steps"].push_back(
            {{"type", toJson(zvCfgTransition::typeName(path.getTransitionAt(i)->getType()))},
             {"to", toJson(*path.getStateAt(i + 1))}});
    }
    return json;
}

void addObject(ordered_json& json, const Account& account, bool explains) {
    json["object"] = typesOf(*account.object());
    json["attributes"] = ordered_json::array();
    for (const Account::Attribute& attribute : account.attributes()) {
        json["attributes"].push_back(toJson(attribute, explains));
    }
    if (explains) {
        json["withoutValue"] = ordered_json::array();
        for (const zvString& name : account.withoutValue()) {
            json["withoutValue"].push_back(toJson(name));
        }
    }
    json["withoutMapping"] = ordered_json::array();
    json["unknown"] = ordered_json::array();
    for (const Account::Unmapped& value : account.unmapped()) {
        if (value.isKnown) {
            json["withoutMapping"].push_back(toJson(value.name));
            continue;
        }
        ordered_json member = {{"name", toJson(value.name)}};
        if (!value.meant.empty()) {
            member["meant"] = toJson(value.meant);
        }
        json["unknown"].push_back(std::move(member));
    }
}

}  // namespace

std::string zvMappingJson::of(const zvMappingTrial& trial, const std::optional<zvLifecycleWay>& way,
                              bool explains, const std::optional<zvProgramFailure>& failure) {
    const Account account(trial);
    ordered_json json;
    if (explains) {
        json["candidates"] = ordered_json::array();
        for (const Account::Candidate& candidate : account.candidates()) {
            json["candidates"].push_back(toJson(candidate));
        }
    }
    if (trial.refusal().empty()) {
        addObject(json, account, explains);
    }
    if (way && way->exists()) {
        json["way"] = toJson(way->path());
    }
    json["exitCode"] = static_cast<int>(failure ? failure->exitCode : zvExitCode::success);
    if (failure) {
        json["failure"] = zvFailureJson::of(*failure);
    }
    return json.dump(2, ' ', false, ordered_json::error_handler_t::replace) + "\n";
}
