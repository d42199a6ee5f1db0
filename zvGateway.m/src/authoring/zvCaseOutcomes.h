#ifndef ZV_CASE_OUTCOMES_H
#define ZV_CASE_OUTCOMES_H

#include <string>
#include <vector>

#include "zvCaseFile.h"
#include "zvCaseOutcome.h"
#include "zvCoverage.h"

/// Cases that are run by one configuration after the other.
class zvCaseOutcomes {
public:
    /// Throws the zvProgramFailure of a file that cannot be read.
    explicit zvCaseOutcomes(const std::vector<std::string>& files);

    /// Runs them by the configuration that the manager has, whatever the files name. What they reach of it is
    /// noted.
    std::vector<zvCaseOutcome> run(zvCoverage& coverage) const;

private:
    std::vector<zvCaseFile> m_files;
};

#endif
