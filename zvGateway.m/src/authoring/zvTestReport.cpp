#include "zvTestReport.h"

#include <algorithm>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "zvConsole.h"
#include "zvStandardInput.h"
#include "zvUtf8.h"

using nlohmann::ordered_json;

namespace {

constexpr std::size_t gapsShown = 10;

std::string shownFile(const std::string& name) {
    return zvConsole::printable(zvStandardInput::nameOf(name).c_str());
}

// What is printable is in the process's locale.
std::string toUtf8(const std::string& printable) { return zvUtf8::encode(zvString(printable.c_str())); }

std::string numberOf(std::size_t count, const char* noun) {
    return zvConsole::counted(static_cast<std::ptrdiff_t>(count), noun);
}

}  // namespace

void zvTestReport::beginFile(const std::string& name) { m_files.push_back({name, {}, 0}); }

void zvTestReport::add(const zvCase& test, const zvCaseResult& result, std::chrono::duration<double> time) {
    File& file = m_files.back();
    file.cases.push_back({test.line, zvCaseRun::nameOf(test), result, time.count()});
    if (result.isPassed()) {
        return;
    }
    ++file.failed;
    ++m_failed;
    if (m_bJson) {
        return;
    }
    std::string text = shownFile(file.name) + ":" + std::to_string(test.line) +
                       ": failed: " + file.cases.back().name + ": " + result.differences.front().text() +
                       "\n";
    for (std::size_t i = 1; i < result.differences.size(); ++i) {
        text += "    " + result.differences[i].text() + "\n";
    }
    for (const std::string& line : result.evaluation) {
        text += "      " + line + "\n";
    }
    zvConsole::print(text);
}

void zvTestReport::endFile() {
    const File& file = m_files.back();
    if (!m_bJson) {
        zvConsole::print(shownFile(file.name) + ": " + numberOf(file.cases.size(), "case") + ", " +
                         std::to_string(file.cases.size() - file.failed) + " passed, " +
                         std::to_string(file.failed) + " failed\n");
    }
}

void zvTestReport::addCoverage(const std::string& configuration, zvCoverageSummary summary) {
    m_coverage.push_back({configuration, std::move(summary)});
    if (m_bJson) {
        return;
    }
    const zvCoverageSummary& added = m_coverage.back().summary;
    std::string text = "coverage of " + zvConsole::printable(configuration.c_str()) + "\n";
    for (const zvCoverageSummary::Count& count : added.counts) {
        char line[80];
        std::snprintf(line, sizeof line, "  %-12s %zu of %zu\n", count.what, count.reached, count.total);
        text += count.total == 0 ? "" : line;
    }
    const std::size_t shown = m_bShowsGaps ? added.gaps.size() : std::min(gapsShown, added.gaps.size());
    for (std::size_t i = 0; i < shown; ++i) {
        text +=
            "  not reached: line " + std::to_string(added.gaps[i].line) + ": " + added.gaps[i].text() + "\n";
    }
    if (shown < added.gaps.size()) {
        text += "  and " + std::to_string(added.gaps.size() - shown) + " more (--coverage lists them)\n";
    }
    zvConsole::print(text);
}

bool zvTestReport::isCovered() const {
    return std::all_of(m_coverage.begin(), m_coverage.end(),
                       [](const Coverage& coverage) { return coverage.summary.gaps.empty(); });
}

void zvTestReport::finish(int exitCode) const {
    if (m_bJson) {
        printJson(exitCode);
    } else if (m_files.size() > 1) {
        std::size_t cases = 0;
        for (const File& file : m_files) {
            cases += file.cases.size();
        }
        zvConsole::print("in all: " + numberOf(cases, "case") + ", " + std::to_string(cases - m_failed) +
                         " passed, " + std::to_string(m_failed) + " failed\n");
    }
}

void zvTestReport::printJson(int exitCode) const {
    ordered_json json = {{"files", ordered_json::array()},
                         {"failed", ordered_json::array()},
                         {"coverage", ordered_json::array()}};
    for (const File& file : m_files) {
        const std::string name = toUtf8(file.name);
        json["files"].push_back({{"file", name}, {"cases", file.cases.size()}, {"failed", file.failed}});
        for (const Entry& entry : file.cases) {
            if (entry.result.isPassed()) {
                continue;
            }
            ordered_json member = {{"file", name}, {"line", entry.line}, {"name", toUtf8(entry.name)}};
            for (const zvCaseDifference& difference : entry.result.differences) {
                member["differences"].push_back({{"what", toUtf8(difference.what)},
                                                 {"expected", toUtf8(difference.expected)},
                                                 {"got", toUtf8(difference.got)}});
            }
            member["evaluation"] = ordered_json::array();
            for (const std::string& line : entry.result.evaluation) {
                member["evaluation"].push_back(toUtf8(line));
            }
            json["failed"].push_back(std::move(member));
        }
    }
    for (const Coverage& coverage : m_coverage) {
        ordered_json member = {{"configuration", toUtf8(coverage.configuration)}};
        for (const zvCoverageSummary::Count& count : coverage.summary.counts) {
            member[count.what] = {{"reached", count.reached}, {"total", count.total}};
        }
        member["notReached"] = ordered_json::array();
        for (const zvCoverageSummary::Gap& gap : coverage.summary.gaps) {
            member["notReached"].push_back({{"line", gap.line}, {"text", toUtf8(gap.text())}});
        }
        json["coverage"].push_back(std::move(member));
    }
    json["exitCode"] = exitCode;
    zvConsole::print(json.dump(2) + "\n");
}
