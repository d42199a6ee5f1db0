#include "zvCasesSection.h"

#include <algorithm>

#include "zvConsole.h"

using zvPage::escaped;

namespace {

// What is printable is in the process's locale.
std::string escapedText(const std::string& printable) { return escaped(zvString(printable.c_str())); }

std::string share(const zvCoverageSummary::Count& count) {
    const std::string reached = std::to_string(count.reached);
    const std::string total = std::to_string(count.total);
    return "<meter aria-hidden=\"true\" max=\"" + total + "\" value=\"" + reached + "\"></meter>";
}

// The link is a search, as the page's script understands it.
std::string gapsOf(const zvCoverageSummary& coverage) {
    const std::string text = coverage.gaps.empty()
                                 ? "Everything is reached."
                                 : "<a href=\"#search=not+reached\">Show only what is not reached</a>";
    return "<p class=\"hint\">" + text + "</p>\n";
}

std::string coverageGroup(const zvCoverageSummary& coverage, zvPageAnchors& anchors) {
    std::string rows;
    int count = 0;
    for (const zvCoverageSummary::Count& part : coverage.counts) {
        if (part.total > 0) {
            ++count;
            rows += zvPage::row(
                {part.what, std::to_string(part.reached) + " of " + std::to_string(part.total), share(part)});
        }
    }
    return zvPage::openGroup(anchors.add("cases", {"coverage"}), "<b>Coverage</b>", "", count + 1) +
           gapsOf(coverage) + zvPage::openTable("coverage", "Coverage", {"Parts", "Reached", "Share"}) +
           rows + zvPage::closeTable() + zvPage::closeGroup();
}

std::string failedGroup(const std::vector<zvCaseOutcome>& outcomes, zvPageAnchors& anchors) {
    std::string rows;
    int count = 0;
    for (const zvCaseOutcome& outcome : outcomes) {
        if (!outcome.isPassed) {
            ++count;
            rows += zvPage::row({escapedText(outcome.title) + ", line " + std::to_string(outcome.line),
                                 escapedText(outcome.text)});
        }
    }
    return count == 0 ? ""
                      : zvPage::openGroup(
                            anchors.add("cases", {"failed"}), "<b>Failed cases</b>",
                            " <span class=\"gap\">" + zvConsole::counted(count, "case") + "</span>", count) +
                            zvPage::openTable("failed", "Failed cases", {"Case", "Outcome"}) + rows +
                            zvPage::closeTable() + zvPage::closeGroup();
}

}  // namespace

std::string zvCasesSection::html(const zvTestedCases& cases, zvPageAnchors& anchors) {
    return zvPage::openSection(section, static_cast<int>(cases.outcomes.size())) +
           failedGroup(cases.outcomes, anchors) + coverageGroup(cases.coverage, anchors) +
           zvPage::closeSection();
}
