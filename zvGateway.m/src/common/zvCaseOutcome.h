#ifndef ZV_CASE_OUTCOME_H
#define ZV_CASE_OUTCOME_H

#include <string>

/// What came of a case by one configuration. The texts are printable.
struct zvCaseOutcome {
    /// As in `case "a part in work"`, with its file.
    std::string title;
    int line = 0;
    bool isPassed = false;
    /// "passed", or what differs from what the case expects.
    std::string text;
};

#endif
