#include "zvCoverageMarks.h"

#include <algorithm>

#include "zvConditionExplanation.h"
#include "zvConditionTree.h"
#include "zvPage.h"

using zvPage::escaped;

namespace {

std::string mark(const std::string& text) { return "<span class=\"gap\">" + text + "</span>"; }

std::string neverMark(bool isNeverFalse, bool isNeverTrue) {
    return isNeverFalse && isNeverTrue ? "  " + mark("never true or false")
           : isNeverFalse              ? "  " + mark("never false")
           : isNeverTrue               ? "  " + mark("never true")
                                       : "";
}

}  // namespace

zvCoverageMarks::zvCoverageMarks(const zvCoverageSummary& coverage) {
    for (const zvCoverageSummary::Gap& gap : coverage.gaps) {
        m_gaps[gap.place].push_back(&gap);
    }
}

const zvCoverageMarks::Gaps& zvCoverageMarks::gapsOf(const void* place) const {
    static const Gaps none;
    const auto found = m_gaps.find(place);
    return found == m_gaps.end() ? none : found->second;
}

std::string zvCoverageMarks::ofWhole(const void* place) const {
    return gapsOf(place).empty() ? "" : mark("not reached");
}

std::string zvCoverageMarks::ofObject(const zvCfgObject& object) const {
    std::string marks;
    for (const zvCoverageSummary::Gap* const gap : gapsOf(&object)) {
        if (!gap->rule) {
            marks += ' ' + mark("not reached " + gap->what);
        }
    }
    return marks;
}

std::string zvCoverageMarks::ofRule(const zvCfgObject& object) const {
    const Gaps& gaps = gapsOf(&object);
    if (std::none_of(gaps.begin(), gaps.end(), [](const auto* gap) { return gap->rule.has_value(); })) {
        return "";
    }
    const zvCndContext nothing;
    const zvConditionExplanation rule(object.getMappingRule(), nothing);
    struct Never {
        bool isFalse = false;
        bool isTrue = false;
    };
    std::vector<Never> never(rule.nodes().size());
    for (const zvCoverageSummary::Gap* const gap : gaps) {
        if (gap->rule) {
            Never& part = never.at(gap->rule->part);
            (gap->rule->outcome ? part.isTrue : part.isFalse) = true;
        }
    }
    std::string lines;
    for (std::size_t i = 0; i < never.size(); ++i) {
        const zvConditionExplanation::Node& node = rule.nodes()[i];
        lines += zvConditionTree::indentOf(node.depth) +
                 escaped(zvConditionExplanation::textOf(node.condition)) +
                 neverMark(never[i].isFalse, never[i].isTrue) + '\n';
    }
    return "<dt>not reached\n</dt><dd><pre>" + lines + "</pre></dd>";
}

std::string zvCoverageMarks::ofAttribute(const zvCfgAttribute& attribute) const {
    std::string all;
    for (const zvCoverageSummary::Gap* const gap : gapsOf(&attribute)) {
        all += (all.empty() ? "not reached: " : ", ") + gap->what;
    }
    return all.empty() ? all : mark(all);
}
