#include "zvCheckCommand.h"

#include <algorithm>
#include <cstdio>
#include <vector>

#include "zvConfigurationCheck.h"
#include "zvConfigurationDocument.h"
#include "zvConfigurationReading.h"
#include "zvConsole.h"

namespace {

std::vector<zvFinding> findingsOf(const zvConfigurationReading& reading, const std::string& file) {
    const zvConfigurationDocument document(file);
    std::vector<zvFinding> findings = reading.findings(document);
    const auto append = [&findings](const std::vector<zvFinding>& more) {
        findings.insert(findings.end(), more.begin(), more.end());
    };
    append(document.findings());
    append(zvConfigurationCheck(*zvCfgConfigManager::getCfgConfigManager()).findings());
    return findings;
}

void print(const zvFinding& finding) {
    std::printf("%s: %s%s%s\n", finding.severity == zvFinding::Severity::error ? "error" : "warning",
                finding.where.c_str(), finding.where.empty() ? "" : ": ", finding.what.c_str());
}

}  // namespace

zvExitCode zvCheckCommand::run() const {
    const zvConfigurationReading reading(file);
    const std::vector<zvFinding> findings = findingsOf(reading, file);
    std::for_each(findings.begin(), findings.end(), print);
    const auto errors = std::count_if(findings.begin(), findings.end(), [](const zvFinding& finding) {
        return finding.severity == zvFinding::Severity::error;
    });
    const auto warnings = static_cast<std::ptrdiff_t>(findings.size()) - errors;
    std::printf("%s: %s, %s%s\n", zvConsole::printable(file.c_str()).c_str(),
                zvConsole::counted(errors, "error").c_str(), zvConsole::counted(warnings, "warning").c_str(),
                reading.isComplete() ? "" : "; the file was not read to its end");
    return errors > 0 || (strict && warnings > 0) ? zvExitCode::configuration : zvExitCode::success;
}
