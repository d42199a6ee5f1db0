#ifndef ZV_EVALUATE_COMMAND_H
#define ZV_EVALUATE_COMMAND_H

#include <string>
#include <vector>

#include "zvCndCondition.h"
#include "zvCndContext.h"
#include "zvFailure.h"

/// `zvgateway eval`: evaluates a condition against attributes of the command line and prints the outcome.
class zvEvaluateCommand {
public:
    std::string condition;
    /// Each `name=value` or `name:Type=value`; the type is one of the configuration's words.
    std::vector<std::string> attributes;
    /// Also prints the outcome of every part of the condition.
    bool explain = false;

    zvExitCode run() const;

private:
    bool evaluate(const zvCndCondition& parsed, const zvCndContext& context) const;
};

#endif
