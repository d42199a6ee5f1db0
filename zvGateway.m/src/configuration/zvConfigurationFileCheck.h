#ifndef ZV_CONFIGURATION_FILE_CHECK_H
#define ZV_CONFIGURATION_FILE_CHECK_H

#include <string>

#include "zvCheckReport.h"

/// `zvgateway check FILE`: everything that is wrong with a configuration file.
namespace zvConfigurationFileCheck {

/// Adds the faults of the file to the report, which knows it as `name`, in the order of the file. Returns
/// whether it was read to its end. Throws the zvProgramFailure of one that cannot be opened.
bool addFaults(const std::string& file, const zvString& name, zvCheckReport& report);

/// Checks a whole file, which may be "-" for standard input.
void run(const std::string& file, zvCheckReport& report);

}  // namespace zvConfigurationFileCheck

#endif
