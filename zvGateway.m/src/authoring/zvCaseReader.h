#ifndef ZV_CASE_READER_H
#define ZV_CASE_READER_H

#include "zvCase.h"
#include "zvCaseKeys.h"

/// Makes a case of a part of a file of cases.
namespace zvCaseReader {

/// What is wrong with the part is added to the faults.
zvCase read(const zvYamlNode& node, zvCaseFaults& faults);

}  // namespace zvCaseReader

#endif
