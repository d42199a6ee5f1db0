#ifndef ZV_DIFFERENCE_TEXT_H
#define ZV_DIFFERENCE_TEXT_H

#include <string>

#include "zvConfigurationComparison.h"

/// The differences between two configurations as lines for people: "+" for what was added, "-" for what was
/// removed, "~" for what has changed.
namespace zvDifferenceText {

std::string of(const zvConfigurationComparison& comparison, const std::string& before,
               const std::string& after);

}  // namespace zvDifferenceText

#endif
