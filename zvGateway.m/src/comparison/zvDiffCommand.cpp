#include "zvDiffCommand.h"

#include <filesystem>
#include <system_error>

#include "zvConfigurationComparison.h"
#include "zvConsole.h"
#include "zvDifferenceJson.h"
#include "zvDifferencePage.h"
#include "zvDifferenceText.h"
#include "zvReplacedFile.h"
#include "zvStandardInput.h"

zvExitCode zvDiffCommand::run() const {
    refuseToReplaceInput();
    std::vector<zvCaseOutcome> outcomes[2];
    const auto runningFor = [this](std::vector<zvCaseOutcome>& result) {
        return [this, &result] { result = runCases ? runCases() : std::vector<zvCaseOutcome>(); };
    };
    const zvComparedConfiguration old(before, runningFor(outcomes[0]));
    const zvComparedConfiguration now(after, runningFor(outcomes[1]));
    zvConfigurationComparison comparison(old, now);
    comparison.addOutcomes(outcomes[0], outcomes[1]);
    const zvExitCode code = comparison.count() == 0 ? zvExitCode::success : zvExitCode::differences;
    const std::string oldName = zvStandardInput::nameOf(before);
    const std::string newName = zvStandardInput::nameOf(after);
    if (!page.empty()) {
        zvReplacedFile::write(page, zvDifferencePage::of(comparison, oldName, newName));
    }
    if (asJson) {
        zvConsole::print(zvDifferenceJson::of(comparison, oldName, newName, code));
    } else if (page.empty()) {
        zvConsole::print(zvDifferenceText::of(comparison, oldName, newName));
    }
    return code;
}

void zvDiffCommand::refuseToReplaceInput() const {
    namespace fs = std::filesystem;
    for (const std::string& file : {before, after}) {
        std::error_code error;
        if (!page.empty() && fs::equivalent(fs::u8path(file), fs::u8path(page), error)) {
            throw zvProgramFailure{zvExitCode::usage, "output", zvConsole::printable(page.c_str()),
                                   "it is one of the configurations"};
        }
    }
}
