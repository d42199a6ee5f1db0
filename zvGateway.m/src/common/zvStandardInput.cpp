#include "zvStandardInput.h"

#include <algorithm>

#include "zvFailure.h"

bool zvStandardInput::isMeantBy(const std::string& name) { return name == "-"; }

std::string zvStandardInput::nameOf(const std::string& name) {
    return isMeantBy(name) ? "standard input" : name;
}

void zvStandardInput::requireOnceAtMost(const std::vector<std::string>& names) {
    if (std::count_if(names.begin(), names.end(), isMeantBy) > 1) {
        throw zvProgramFailure{zvExitCode::usage, "arguments", "-",
                               "standard input can be read once only: name a file for all but one of them"};
    }
}
