#ifndef ZV_STANDARD_INPUT_H
#define ZV_STANDARD_INPUT_H

#include <string>
#include <vector>

/// Standard input among the files of a command line, where its name is "-".
namespace zvStandardInput {

constexpr int descriptor = 0;

bool isMeantBy(const std::string& name);
/// The name as people are told: "standard input", or what was given.
std::string nameOf(const std::string& name);
/// Throws the zvProgramFailure of more than one "-" among the files that are read.
void requireOnceAtMost(const std::vector<std::string>& names);

}  // namespace zvStandardInput

#endif
