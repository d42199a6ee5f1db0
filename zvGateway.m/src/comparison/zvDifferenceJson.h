#ifndef ZV_DIFFERENCE_JSON_H
#define ZV_DIFFERENCE_JSON_H

#include <string>

#include "zvConfigurationComparison.h"
#include "zvFailure.h"

/// The differences between two configurations as one JSON document.
namespace zvDifferenceJson {

std::string of(const zvConfigurationComparison& comparison, const std::string& before,
               const std::string& after, zvExitCode exitCode);

}  // namespace zvDifferenceJson

#endif
