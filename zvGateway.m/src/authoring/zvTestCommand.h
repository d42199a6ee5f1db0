#ifndef ZV_TEST_COMMAND_H
#define ZV_TEST_COMMAND_H

#include <string>
#include <vector>

#include "zvCaseFile.h"
#include "zvFailure.h"
#include "zvTestReport.h"

/// `zvgateway test`: runs the cases of files by the configurations that they are for.
class zvTestCommand {
public:
    /// "-" is standard input.
    std::vector<std::string> files;
    /// Instead of the configurations that the files name; empty for those.
    std::string configuration;
    /// The file for CI servers; empty for none.
    std::string junit;
    bool asJson = false;
    /// Lists everything that no case reaches.
    bool showsGaps = false;
    /// What no case reaches fails as a case does.
    bool requiresCoverage = false;

    /// Throws the zvProgramFailure of a file that cannot be read.
    zvExitCode run() const;

private:
    std::vector<zvCaseFile> readFiles() const;
    void runGroup(const std::string& file, const std::vector<zvCaseFile>& all, zvTestReport& report) const;
};

#endif
