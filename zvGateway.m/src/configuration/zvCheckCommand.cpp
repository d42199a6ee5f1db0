#include "zvCheckCommand.h"

#include <algorithm>
#include <cstdio>
#include <tuple>
#include <vector>

#include "zvConfigurationCheck.h"
#include "zvConfigurationDocument.h"
#include "zvConfigurationReading.h"
#include "zvConsole.h"

using zvConsole::printable;

namespace {

using Findings = std::vector<zvFinding>;

void append(Findings& findings, const Findings& more) {
    findings.insert(findings.end(), more.begin(), more.end());
}

// In the order of the file; what has no place in it comes last.
bool isBefore(const zvFinding& left, const zvFinding& right) {
    const auto key = [](const zvTextPosition& position) {
        return std::make_tuple(position.line == 0, position.line, position.column);
    };
    return key(left.position) < key(right.position);
}

Findings findingsOf(const zvConfigurationReading& reading, const std::string& file) {
    Findings findings = reading.findings().findings();
    append(findings, zvConfigurationDocument(file).findings());
    append(findings, zvConfigurationCheck(*zvCfgConfigManager::getCfgConfigManager()).findings());
    std::stable_sort(findings.begin(), findings.end(), isBefore);
    return findings;
}

// As compilers do, so that editors go to the place: file:line:column: severity: text [kind].
void print(const std::string& file, const zvFinding& finding) {
    std::string text = file + ":";
    for (const int number : {finding.position.line, finding.position.column}) {
        text += number > 0 ? std::to_string(number) + ":" : "";
    }
    text += finding.severity == zvFinding::Severity::error ? " error: " : " warning: ";
    text += printable(finding.object);
    if (!finding.attribute.empty()) {
        text += ", \"" + printable(finding.attribute) + '"';
    }
    text += (finding.object.empty() ? "" : ": ") + printable(finding.text);
    std::printf("%s [%s]\n", text.c_str(), std::string(finding.kind).c_str());
}

}  // namespace

zvExitCode zvCheckCommand::run() const {
    const zvConfigurationReading reading(file, zvConfigurationReading::InvalidRule::leavesOutItsObject);
    const Findings findings = findingsOf(reading, file);
    const std::string name = printable(file.c_str());
    std::ptrdiff_t errors = 0;
    for (const zvFinding& finding : findings) {
        print(name, finding);
        errors += finding.severity == zvFinding::Severity::error ? 1 : 0;
    }
    const auto warnings = static_cast<std::ptrdiff_t>(findings.size()) - errors;
    std::printf("%s: %s, %s%s\n", name.c_str(), zvConsole::counted(errors, "error").c_str(),
                zvConsole::counted(warnings, "warning").c_str(),
                reading.isComplete() ? "" : "; the file was not read to its end");
    return errors > 0 || (strict && warnings > 0) ? zvExitCode::configuration : zvExitCode::success;
}
