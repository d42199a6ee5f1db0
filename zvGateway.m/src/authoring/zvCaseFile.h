#ifndef ZV_CASE_FILE_H
#define ZV_CASE_FILE_H

#include <string>
#include <vector>

#include "zvCase.h"
#include "zvCaseKeys.h"

/// A file of cases for a mapping configuration.
struct zvCaseFile {
    /// As it was given; "-" is standard input.
    std::string name;
    /// The configuration that the cases are for, for the process's folder; empty if the file names none.
    std::string configuration;
    std::vector<zvCase> cases;
    zvCaseFaults faults;

    /// Reads the file; what is wrong with its content becomes faults. Throws the zvProgramFailure of a file
    /// that cannot be opened.
    static zvCaseFile read(const std::string& name);
    /// Throws the zvProgramFailure of a file with faults, once each of them is told with its place.
    void requireFaultless() const;
};

#endif
