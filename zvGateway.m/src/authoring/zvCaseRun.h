#ifndef ZV_CASE_RUN_H
#define ZV_CASE_RUN_H

#include <string>
#include <vector>

#include "zvCase.h"
#include "zvCoverage.h"

/// Where what came out differs from what had to. The texts are printable.
struct zvCaseDifference {
    std::string what;
    std::string expected;
    std::string got;

    std::string text() const { return what + ": expected " + expected + ", got " + got; }
};

struct zvCaseResult {
    std::vector<zvCaseDifference> differences;
    /// Of a case that failed, how it came to what it got: a printable line for each part of the rules.
    std::vector<std::string> evaluation;

    bool isPassed() const { return differences.empty(); }
};

/// Runs cases by the configuration that the manager has.
namespace zvCaseRun {

zvCaseResult run(const zvCase& test, zvCoverage& coverage);
/// The case's name; without one, what it is about. Printable.
std::string nameOf(const zvCase& test);

}  // namespace zvCaseRun

#endif
