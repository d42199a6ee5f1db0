#include "zvConfigurationFileCheck.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "zvConfigurationCheck.h"
#include "zvConfigurationDocument.h"
#include "zvConfigurationReading.h"
#include "zvProcess.h"
#include "zvReplacedFile.h"
#include "zvTemporaryFolder.h"

namespace {

using Findings = std::vector<zvFinding>;

constexpr char standardInput[] = "standard input";
constexpr int standardInputDescriptor = 0;
constexpr std::size_t longestInput = 256'000'000;

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

// A document may have any encoding, which the parser finds out of a file. In a folder of its own nothing else
// can be included.
std::string keepStandardInput(const zvTemporaryFolder& folder) {
    std::string file = (folder.path() / "standard-input.xml").string();
    std::string content;
    const std::error_code error = zvProcess::readToEnd(standardInputDescriptor, longestInput, content);
    if (error) {
        throw zvProgramFailure{zvExitCode::configuration, "configuration", standardInput,
                               zvProcess::messageOf(error)};
    }
    zvReplacedFile::write(file, content);
    return file;
}

void check(const std::string& file, const zvString& name, zvCheckReport& report) {
    const bool isComplete = zvConfigurationFileCheck::addFaults(file, name, report);
    report.endFile(name, isComplete);
}

}  // namespace

bool zvConfigurationFileCheck::addFaults(const std::string& file, const zvString& name,
                                         zvCheckReport& report) {
    // What an earlier file left is not this one's.
    zvCfgConfigManager::destroyCfgConfigManager();
    const zvConfigurationReading reading(file, zvConfigurationReading::InvalidRule::leavesOutItsObject);
    for (zvFinding finding : findingsOf(reading, file)) {
        finding.text.replace(file.c_str(), name);
        report.addFault({name, finding.position}, finding, zvExitCode::configuration);
    }
    return reading.isComplete();
}

void zvConfigurationFileCheck::run(const std::string& file, zvCheckReport& report) {
    const bool isStandardInput = file == "-";
    const zvString name = isStandardInput ? standardInput : file.c_str();
    try {
        if (isStandardInput) {
            const zvTemporaryFolder folder;
            check(keepStandardInput(folder), name, report);
        } else {
            check(file, name, report);
        }
    } catch (const zvProgramFailure& failure) {
        report.addUnreadable(name, failure);
    }
}
