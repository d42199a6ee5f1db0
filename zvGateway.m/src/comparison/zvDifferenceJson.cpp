#include "zvDifferenceJson.h"

#include <nlohmann/json.hpp>

#include "zvUtf8.h"

using nlohmann::ordered_json;

namespace {

using Side = zvAlignedLine::Side;

const char* wordOf(zvChange change) {
    return change == zvChange::added ? "added" : change == zvChange::removed ? "removed" : "changed";
}

void addText(ordered_json& json, const char* name, const zvString& text) {
    if (!text.empty()) {
        json[name] = zvUtf8::encode(text);
    }
}

void addLine(ordered_json& json, const char* name, const zvTextPosition& place) {
    if (place.line > 0) {
        json[name] = place.line;
    }
}

ordered_json toJson(const std::vector<zvAlignedLine>& rule) {
    ordered_json lines = ordered_json::array();
    for (const zvAlignedLine& line : rule) {
        const char* const side = line.side == Side::both ? "both" : line.side == Side::before ? "old" : "new";
        lines.push_back({{"in", side}, {"depth", line.line.depth}, {"text", zvUtf8::encode(line.line.text)}});
    }
    return lines;
}

ordered_json toJson(const zvDifferenceSection& section, const zvDifferenceGroup& group,
                    const zvDifference& difference) {
    ordered_json json = {{"section", section.id},
                         {"object", zvUtf8::encode(group.title)},
                         {"change", wordOf(difference.change)}};
    addText(json, "part", difference.part);
    addText(json, "property", difference.property);
    addText(json, "old", difference.before);
    addText(json, "new", difference.after);
    addLine(json, "oldLine", difference.placeBefore);
    addLine(json, "newLine", difference.placeAfter);
    if (!difference.rule.empty()) {
        json["rule"] = toJson(difference.rule);
    }
    return json;
}

}  // namespace

std::string zvDifferenceJson::of(const zvConfigurationComparison& comparison, const std::string& before,
                                 const std::string& after, zvExitCode exitCode) {
    ordered_json json = {{"old", zvUtf8::encode(before.c_str())},
                         {"new", zvUtf8::encode(after.c_str())},
                         {"differences", ordered_json::array()}};
    for (const zvDifferenceSection& section : comparison.sections()) {
        for (const zvDifferenceGroup& group : section.groups) {
            for (const zvDifference& difference : group.differences) {
                json["differences"].push_back(toJson(section, group, difference));
            }
        }
    }
    json["exitCode"] = static_cast<int>(exitCode);
    return json.dump(2) + "\n";
}
