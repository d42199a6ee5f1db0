#ifndef ZV_TESTED_CASES_H
#define ZV_TESTED_CASES_H

#include <vector>

#include "zvCaseOutcome.h"
#include "zvCoverageSummary.h"

/// What came of cases by the configuration that the library has, and what they reach of it.
struct zvTestedCases {
    std::vector<zvCaseOutcome> outcomes;
    zvCoverageSummary coverage;
};

#endif
