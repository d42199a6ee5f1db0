#include "zvDifferenceText.h"

#include "zvConditionTree.h"
#include "zvConfigurationNames.h"
#include "zvConsole.h"

using zvConfigurationNames::quoted;
using zvConsole::printable;

namespace {

using Side = zvAlignedLine::Side;

char signOf(zvChange change) {
    return change == zvChange::added ? '+' : change == zvChange::removed ? '-' : '~';
}

std::string signedLine(char sign, std::size_t indent, const std::string& text) {
    return std::string(indent, ' ') + sign + ' ' + text + '\n';
}

// As "line 6", or as "line 7, was 6" for what is elsewhere now.
std::string placeOf(const zvDifferenceGroup& group) {
    const int was = group.placeBefore.line;
    const int is = group.placeAfter.line;
    std::string text = is > 0 || was > 0 ? "  line " + std::to_string(is > 0 ? is : was) : "";
    if (is > 0 && was > 0 && is != was) {
        text += ", was " + std::to_string(was);
    }
    return text;
}

std::string treeOf(const std::vector<zvAlignedLine>& rule) {
    std::string text;
    for (const zvAlignedLine& line : rule) {
        const char sign = line.side == Side::both ? ' ' : line.side == Side::before ? '-' : '+';
        text += signedLine(sign, 6, zvConditionTree::indentOf(line.line.depth) + printable(line.line.text));
    }
    return text;
}

std::string valuesOf(const zvDifference& difference) {
    const auto value = [](const zvString& text) { return text.empty() ? "none" : quoted(text); };
    // They have quotes of their own.
    const bool isList = difference.property == zvDifference::order ||
                        difference.property == zvDifference::orderOfTransitions ||
                        difference.property == zvDifference::outcome;
    return isList ? printable(difference.before) + " -> " + printable(difference.after)
                  : value(difference.before) + " -> " + value(difference.after);
}

std::string waysOf(const zvDifference& difference) {
    std::string text;
    if (!difference.before.empty()) {
        text += " no longer to " + printable(difference.before);
    }
    if (!difference.after.empty()) {
        text += (text.empty() ? "" : ";") + std::string(" now also to ") + printable(difference.after);
    }
    return text;
}

std::string lineOf(const zvDifference& difference) {
    const std::string part = printable(difference.part);
    const std::string property = printable(difference.property);
    const char sign = signOf(difference.change);
    if (!difference.rule.empty()) {
        return signedLine(sign, 4, property + ":") + treeOf(difference.rule);
    }
    if (difference.change != zvChange::changed) {
        const zvString& description =
            difference.change == zvChange::added ? difference.after : difference.before;
        const bool isBoth = !part.empty() && !description.empty();
        return signedLine(sign, 4, part + (isBoth ? ": " : "") + printable(description));
    }
    const std::string head = part + (part.empty() ? "" : ": ");
    return difference.property == zvDifference::waysTo
               ? signedLine(sign, 4, part + ": leads" + waysOf(difference))
               : signedLine(sign, 4, head + property + ": " + valuesOf(difference));
}

}  // namespace

std::string zvDifferenceText::of(const zvConfigurationComparison& comparison, const std::string& before,
                                 const std::string& after) {
    const auto shown = [](const std::string& file) { return zvConsole::printablePath(file.c_str()); };
    std::string text = shown(before) + "  ->  " + shown(after) + "\n";
    for (const zvDifferenceSection& section : comparison.sections()) {
        text += "\n" + std::string(section.id) + "\n";
        for (const zvDifferenceGroup& group : section.groups) {
            text += signedLine(signOf(group.change), 2, printable(group.title) + placeOf(group));
            for (const zvDifference& difference : group.differences) {
                text += lineOf(difference);
            }
        }
    }
    const auto count = static_cast<std::ptrdiff_t>(comparison.count());
    return text + (count == 0 ? "" : "\n") + zvConsole::counted(count, "difference") + "\n";
}
