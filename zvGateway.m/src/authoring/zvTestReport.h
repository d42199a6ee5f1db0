#ifndef ZV_TEST_REPORT_H
#define ZV_TEST_REPORT_H

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

#include "zvCaseFile.h"
#include "zvCaseRun.h"

/// What the cases of a run came to: as lines, as one JSON document, and as a file for CI servers.
class zvTestReport {
public:
    /// `showsGaps`: everything that no case reaches is listed.
    zvTestReport(bool asJson, bool showsGaps) : m_bJson(asJson), m_bShowsGaps(showsGaps) {}

    void beginFile(const std::string& name);
    void add(const zvCase& test, const zvCaseResult& result, std::chrono::duration<double> time);
    void endFile();
    void addCoverage(const std::string& configuration, zvCoverageSummary summary);
    /// Tells the end, with the exit code of the run.
    void finish(int exitCode) const;
    /// The run in JUnit's form.
    void writeJUnit(const std::string& path) const;

    bool hasFailures() const { return m_failed > 0; }
    bool isCovered() const;

private:
    struct Entry {
        int line;
        std::string name;
        zvCaseResult result;
        double seconds;
    };
    struct File {
        std::string name;
        std::vector<Entry> cases;
        std::size_t failed = 0;
    };
    struct Coverage {
        std::string configuration;
        zvCoverageSummary summary;
    };

    void printJson(int exitCode) const;

    const bool m_bJson;
    const bool m_bShowsGaps;
    std::vector<File> m_files;
    std::vector<Coverage> m_coverage;
    std::size_t m_failed = 0;
};

#endif
