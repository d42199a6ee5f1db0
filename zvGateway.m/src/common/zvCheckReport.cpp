#include "zvCheckReport.h"

#include <cstdio>
#include <nlohmann/json.hpp>

#include "zvConsole.h"
#include "zvShownArguments.h"
#include "zvUtf8.h"

using nlohmann::ordered_json;
using zvConsole::printable;

namespace {

std::string shown(const zvCheckPlace& place) {
    std::string text = (place.isFile ? zvConsole::printablePath(place.name) : printable(place.name)) + ":";
    for (const int number : {place.position.line, place.position.column}) {
        text += number > 0 ? std::to_string(number) + ":" : "";
    }
    return text;
}

const char* wordOf(zvFinding::Severity severity) {
    return severity == zvFinding::Severity::error ? "error" : "warning";
}

std::string shown(const zvFinding& finding) {
    std::string text = printable(finding.object);
    if (!finding.attribute.empty()) {
        text += ", \"" + printable(finding.attribute) + '"';
    }
    text += (finding.object.empty() ? "" : ": ") + printable(finding.text);
    return text + " [" + std::string(finding.kind) + "]";
}

ordered_json toJson(const zvCheckPlace& place) {
    ordered_json json = {{place.isFile ? "file" : "item", zvUtf8::encode(place.name)}};
    if (place.position.line > 0) {
        json["line"] = place.position.line;
    }
    if (place.position.column > 0) {
        json["column"] = place.position.column;
    }
    return json;
}

ordered_json toJson(const zvCheckPlace& place, const zvFinding& finding) {
    ordered_json json = toJson(place);
    json["severity"] = wordOf(finding.severity);
    json["kind"] = finding.kind;
    if (!finding.object.empty()) {
        json["object"] = zvUtf8::encode(finding.object);
    }
    if (!finding.attribute.empty()) {
        json["attribute"] = zvUtf8::encode(finding.attribute);
    }
    json["text"] = zvUtf8::encode(finding.text);
    return json;
}

}  // namespace

void zvCheckReport::addGood(const zvCheckPlace& place, const zvString& text) { addItem(place, "ok", text); }

void zvCheckReport::addLeftOut(const zvCheckPlace& place, const zvString& reason) {
    addItem(place, "left out", reason);
}

void zvCheckReport::addItem(const zvCheckPlace& place, const char* outcome, const zvString& text) {
    if (m_bJson) {
        m_items.push_back({place, outcome, text});
    } else {
        zvConsole::print(shown(place) + " " + outcome + (text.empty() ? "" : ": ") + printable(text) + "\n");
    }
}

void zvCheckReport::addFault(const zvCheckPlace& place, const zvFinding& finding, zvExitCode exitCode) {
    count(finding, exitCode);
    if (m_bJson) {
        m_faults.push_back({place, finding});
    } else {
        zvConsole::print(shown(place) + " " + wordOf(finding.severity) + ": " + shown(finding) + "\n");
    }
}

void zvCheckReport::addError(const zvCheckPlace& place, std::string_view kind, const zvString& text,
                             zvExitCode exitCode) {
    addFault(place, {zvFinding::Severity::error, kind, zvString(), zvString(), place.position, text},
             exitCode);
}

void zvCheckReport::addUnreadable(const zvString& name, const zvProgramFailure& failure) {
    const zvFinding finding{zvFinding::Severity::error, zvFindingKind::notLoaded, zvString(), zvString(), {},
                            failure.reason.c_str()};
    if (m_bJson) {
        addFault(name, finding, failure.exitCode);
        endFile(name, false);
        return;
    }
    count(finding, failure.exitCode);
    m_files.push_back({name, m_inFile, false});
    m_inFile = {};
    zvConsole::flush();
    zvConsole::complain(failure.step + ": " + failure.subject + ": " + failure.reason);
}

void zvCheckReport::count(const zvFinding& finding, zvExitCode exitCode) {
    const bool isError = finding.severity == zvFinding::Severity::error;
    for (Counts* const counts : {&m_inFile, &m_inAll}) {
        ++(isError ? counts->errors : counts->warnings);
    }
    const bool isFirst = m_exitCode == zvExitCode::success || exitCode < m_exitCode;
    if ((isError || m_bStrict) && isFirst) {
        m_exitCode = exitCode;
    }
}

void zvCheckReport::endFile(const zvString& name, bool isComplete) {
    m_files.push_back({name, m_inFile, isComplete});
    if (!m_bJson) {
        zvConsole::print(zvConsole::printablePath(name) + ": " + textOf(m_inFile) +
                         (isComplete ? "" : "; the file was not read to its end") + "\n");
    }
    m_inFile = {};
}

zvExitCode zvCheckReport::finish() {
    if (m_bJson) {
        printJson();
    } else if (m_files.size() > 1) {
        zvConsole::print("in all: " + textOf(m_inAll) + "\n");
    }
    return m_exitCode;
}

void zvCheckReport::printJson() const {
    ordered_json json = {{"items", ordered_json::array()},
                         {"files", ordered_json::array()},
                         {"findings", ordered_json::array()}};
    for (const Item& item : m_items) {
        ordered_json member = toJson(item.place);
        member["outcome"] = item.outcome;
        member["text"] = zvUtf8::encode(item.text);
        json["items"].push_back(member);
    }
    for (const File& file : m_files) {
        json["files"].push_back({{"file", zvUtf8::encode(file.name)},
                                 {"errors", file.counts.errors},
                                 {"warnings", file.counts.warnings},
                                 {"isComplete", file.isComplete}});
    }
    for (const Fault& fault : m_faults) {
        json["findings"].push_back(toJson(fault.place, fault.finding));
    }
    json["errors"] = m_inAll.errors;
    json["warnings"] = m_inAll.warnings;
    json["exitCode"] = static_cast<int>(m_exitCode);
    zvConsole::print(json.dump(2) + "\n");
}

std::string zvCheckReport::textOf(const Counts& counts) {
    return zvConsole::counted(counts.errors, "error") + ", " + zvConsole::counted(counts.warnings, "warning");
}
