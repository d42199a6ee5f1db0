#include "zvDifferencePage.h"

#include "zvConditionTree.h"
#include "zvConsole.h"
#include "zvDifferencePageCss.h"
#include "zvPage.h"

using zvPage::escaped;

namespace {

using Side = zvAlignedLine::Side;

std::string marked(Side side, const std::string& html) {
    return side == Side::both || html.empty() ? html
           : side == Side::before             ? "<del>" + html + "</del>"
                                              : "<ins>" + html + "</ins>";
}

// One side's tree, with a blank line for each line that only the other one has.
std::string treeOf(const std::vector<zvAlignedLine>& rule, Side side) {
    std::string text = "<pre>";
    for (const zvAlignedLine& line : rule) {
        if (line.side == Side::both || line.side == side) {
            text += zvConditionTree::indentOf(line.line.depth) + marked(line.side, escaped(line.line.text));
        }
        text += '\n';
    }
    return text + "</pre>";
}

std::string rowOf(const zvDifference& difference) {
    std::string what = escaped(difference.part);
    if (!difference.property.empty()) {
        what += (what.empty() ? "" : ": ") + escaped(difference.property);
    }
    if (what.empty()) {
        what = difference.change == zvChange::added ? "added" : "removed";
    }
    if (!difference.rule.empty()) {
        return zvPage::row({what, difference.before.empty() ? "" : treeOf(difference.rule, Side::before),
                            difference.after.empty() ? "" : treeOf(difference.rule, Side::after)});
    }
    // A part without a description is told by its name.
    const auto valueOf = [&difference](const zvString& value, zvChange whole) {
        return escaped(value.empty() && difference.change == whole ? difference.part : value);
    };
    return zvPage::row({what, marked(Side::before, valueOf(difference.before, zvChange::removed)),
                        marked(Side::after, valueOf(difference.after, zvChange::added))});
}

std::string linesOf(const zvDifferenceGroup& group) {
    const int was = group.placeBefore.line;
    const int is = group.placeAfter.line;
    if (was <= 0 && is <= 0) {
        return "";
    }
    const auto line = [](int number) { return number > 0 ? std::to_string(number) : std::string("none"); };
    return " <span class=\"soft\">line " + line(was) + " <span class=\"arrow\">&rarr;</span> " + line(is) +
           "</span>";
}

std::string groupOf(const zvDifferenceGroup& group, zvPageAnchors& anchors) {
    const char* const word = group.change == zvChange::added     ? "added"
                             : group.change == zvChange::removed ? "removed"
                                                                 : "changed";
    std::string html =
        zvPage::openGroup(anchors.add("difference", {group.title}), "<b>" + escaped(group.title) + "</b>",
                          " " + zvPage::badge(word) + linesOf(group),
                          static_cast<int>(group.differences.size())) +
        zvPage::openTable("differences", "Differences of " + group.title, {"What", "Old", "New"});
    for (const zvDifference& difference : group.differences) {
        html += rowOf(difference);
    }
    return html + zvPage::closeTable() + zvPage::closeGroup();
}

}  // namespace

std::string zvDifferencePage::of(const zvConfigurationComparison& comparison, const std::string& before,
                                 const std::string& after) {
    zvPage::Frame frame;
    frame.title = "Differences of two configurations";
    frame.searched = "Search objects, attributes, rules, values";
    frame.style = {zvDifferencePageCss, zvDifferencePageCssHash};
    for (const zvDifferenceSection& section : comparison.sections()) {
        frame.sections.push_back({section.id, section.name});
    }
    zvPageAnchors anchors;
    std::string html = zvPage::begin(frame) + "<p class=\"files\">" + escaped(before.c_str()) +
                       " <span class=\"arrow\">&rarr;</span> " + escaped(after.c_str()) + ": " +
                       zvConsole::counted(static_cast<std::ptrdiff_t>(comparison.count()), "difference") +
                       "</p>\n";
    for (const zvDifferenceSection& section : comparison.sections()) {
        html += zvPage::openSection({section.id, section.name}, static_cast<int>(section.groups.size()));
        for (const zvDifferenceGroup& group : section.groups) {
            html += groupOf(group, anchors);
        }
        html += zvPage::closeSection();
    }
    return html + zvPage::end(frame);
}
