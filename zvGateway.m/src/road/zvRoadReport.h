#ifndef ZV_ROAD_REPORT_H
#define ZV_ROAD_REPORT_H

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "zvFailure.h"
#include "zvTypes.h"

/// What became of a step that did not fail.
struct zvStepOutcome {
    enum class Kind { done, leftOut };

    Kind kind;
    /// What was done, or why it was not, in a few printable words.
    std::string detail;

    static zvStepOutcome done(std::string detail) { return {Kind::done, std::move(detail)}; }
    static zvStepOutcome leftOut(std::string detail) { return {Kind::leftOut, std::move(detail)}; }
};

/// What was done on an event's road, how long it took and where things are; for people and for programs.
/// Texts are printable; times are in milliseconds.
class zvRoadReport {
public:
    struct File {
        std::string path;
        std::string outcome;
        zvInt64 bytes = 0;
        double milliseconds = 0;
    };

    zvRoadReport();

    /// Runs the step and keeps what became of it. Throws the zvProgramFailure of a step that threw: with
    /// `exitCode` for a zvStepFailure, and as unexpected for every other exception.
    void take(const char* name, zvExitCode exitCode, const std::function<zvStepOutcome()>& step);

    /// The failure of the step that is being run, which is kept. For the end of the process within it.
    zvProgramFailure stop(const std::string& subject, const std::string& reason);

    /// One thing that a program finds by its key, and a person by its label at the end; either may be empty.
    void setFact(const char* key, const char* label, std::string value);
    void addFile(File file) { m_files.push_back(std::move(file)); }
    const std::vector<File>& files() const { return m_files; }

    /// Since the report was made.
    double milliseconds() const;

    /// To the console; nothing when not even a first step was taken.
    void print() const;
    /// To standard output, as one JSON object and a line feed.
    void printJson(zvExitCode exitCode) const;
    /// The same for a failure before the road began.
    static void printJson(const zvProgramFailure& failure);

    struct Step {
        std::string name;
        std::string outcome;
        std::string detail;
        double milliseconds;
    };
    /// Those that were taken, in their order.
    const std::vector<Step>& steps() const { return m_steps; }

private:
    [[noreturn]] void fail(zvProgramFailure failure);
    void keep(zvProgramFailure failure);

    struct Fact {
        std::string key;
        std::string label;
        std::string value;
    };

    struct Running {
        const char* name = "";
        zvExitCode exitCode = zvExitCode::unexpected;
        double start = 0;
    };

    double m_start;
    Running m_running;
    std::vector<Step> m_steps;
    std::vector<Fact> m_facts;
    std::vector<File> m_files;
    std::optional<zvProgramFailure> m_failure;
};

#endif
