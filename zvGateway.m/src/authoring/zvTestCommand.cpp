#include "zvTestCommand.h"

#include <algorithm>
#include <chrono>

#include "zvConfigurationReading.h"
#include "zvConsole.h"
#include "zvStandardInput.h"

zvExitCode zvTestCommand::run() const {
    std::vector<std::string> inputs = files;
    inputs.push_back(configuration);
    zvStandardInput::requireOnceAtMost(inputs);
    const std::vector<zvCaseFile> read = readFiles();
    zvTestReport report(asJson, showsGaps);
    std::vector<std::string> done;
    for (const zvCaseFile& file : read) {
        if (std::find(done.begin(), done.end(), file.configuration) == done.end()) {
            done.push_back(file.configuration);
            runGroup(file.configuration, read, report);
        }
    }
    const bool isGood = !report.hasFailures() && (!requiresCoverage || report.isCovered());
    const zvExitCode exitCode = isGood ? zvExitCode::success : zvExitCode::cases;
    if (!junit.empty()) {
        report.writeJUnit(junit);
    }
    report.finish(static_cast<int>(exitCode));
    return exitCode;
}

// All of them before anything is run, so that a fault in the last one is not found after the others' cases.
std::vector<zvCaseFile> zvTestCommand::readFiles() const {
    std::vector<zvCaseFile> read;
    read.reserve(files.size());
    for (const std::string& name : files) {
        read.push_back(zvCaseFile::read(name));
        zvCaseFile& file = read.back();
        file.requireFaultless();
        if (!configuration.empty()) {
            file.configuration = configuration;
        }
        if (file.configuration.empty()) {
            throw zvProgramFailure{zvExitCode::usage, "cases", zvConsole::printable(name.c_str()),
                                   "it names no configuration: \"configuration: FILE\" or --config FILE"};
        }
    }
    return read;
}

void zvTestCommand::runGroup(const std::string& file, const std::vector<zvCaseFile>& all,
                             zvTestReport& report) const {
    // What an earlier file left is not this one's.
    zvCfgConfigManager::destroyCfgConfigManager();
    zvConfigurationReading(file, zvConfigurationReading::InvalidRule::endsTheParse).requireComplete();
    zvCoverage coverage(*zvCfgConfigManager::getCfgConfigManager());
    for (const zvCaseFile& cases : all) {
        if (cases.configuration != file) {
            continue;
        }
        report.beginFile(cases.name);
        for (const zvCase& test : cases.cases) {
            const auto begin = std::chrono::steady_clock::now();
            const zvCaseResult result = zvCaseRun::run(test, coverage);
            report.add(test, result, std::chrono::steady_clock::now() - begin);
        }
        report.endFile();
    }
    report.addCoverage(file, coverage.summary());
}
