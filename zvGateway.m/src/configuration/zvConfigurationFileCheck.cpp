#include "zvConfigurationFileCheck.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "zvConfigurationCheck.h"
#include "zvConfigurationDocument.h"
#include "zvConfigurationReading.h"
#include "zvStandardInput.h"

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

Findings findingsOf(const zvConfigurationReading& reading) {
    Findings findings = reading.findings().findings();
    append(findings, zvConfigurationDocument(reading.input().file()).findings());
    append(findings, zvConfigurationCheck(*zvCfgConfigManager::getCfgConfigManager()).findings());
    std::stable_sort(findings.begin(), findings.end(), isBefore);
    return findings;
}

}  // namespace

bool zvConfigurationFileCheck::addFaults(const std::string& file, const zvString& name,
                                         zvCheckReport& report) {
    // What an earlier file left is not this one's.
    zvCfgConfigManager::destroyCfgConfigManager();
    const zvConfigurationReading reading(file, zvConfigurationReading::InvalidRule::leavesOutItsObject);
    for (zvFinding finding : findingsOf(reading)) {
        finding.text.replace(reading.input().file().c_str(), name);
        report.addFault({name, finding.position}, finding, zvExitCode::configuration);
    }
    return reading.isComplete();
}

void zvConfigurationFileCheck::run(const std::string& file, zvCheckReport& report) {
    const zvString name = zvStandardInput::nameOf(file).c_str();
    try {
        report.endFile(name, addFaults(file, name, report));
    } catch (const zvProgramFailure& failure) {
        report.addUnreadable(name, failure);
    }
}
