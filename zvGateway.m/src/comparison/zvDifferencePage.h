#ifndef ZV_DIFFERENCE_PAGE_H
#define ZV_DIFFERENCE_PAGE_H

#include <string>

#include "zvConfigurationComparison.h"

/// The differences between two configurations as one HTML page, the old on the left and the new on the right.
namespace zvDifferencePage {

std::string of(const zvConfigurationComparison& comparison, const std::string& before,
               const std::string& after);

}  // namespace zvDifferencePage

#endif
