#include "zvConfigurationComparison.h"

#include <iterator>
#include <utility>

#include "zvCandidateOrder.h"
#include "zvLifecycleWays.h"
#include "zvPartComparison.h"

namespace {

zvDifferenceGroup groupOf(const zvComparedPart* before, const zvComparedPart* after) {
    zvDifferenceGroup group;
    group.change = before == nullptr  ? zvChange::added
                   : after == nullptr ? zvChange::removed
                                      : zvChange::changed;
    group.title = (after == nullptr ? before : after)->title();
    group.placeBefore = before == nullptr ? zvTextPosition() : before->position;
    group.placeAfter = after == nullptr ? zvTextPosition() : after->position;
    group.differences = zvPartComparison::differences(before, after);
    return group;
}

}  // namespace

zvConfigurationComparison::zvConfigurationComparison(const zvComparedConfiguration& before,
                                                     const zvComparedConfiguration& after) {
    zvDifferenceSection document{"document", "Document", {groupOf(&before.document(), &after.document())}};
    if (document.groups.front().differences.empty()) {
        document.groups.clear();
    }
    add(std::move(document));
    compareObjects(before.objects(), after.objects());
    zvPartMatching collections(before.collections(), after.collections());
    collections.matchByNames();
    add({"views", "Views", groups(before.collections(), after.collections(), collections)});
    compareLifecycles(before.lifecycles(), after.lifecycles());
}

void zvConfigurationComparison::compareObjects(const Parts& before, const Parts& after) {
    zvPartMatching matching(before, after);
    matching.matchObjects();
    zvDifferenceSection section{"objects", "Objects", groups(before, after, matching)};
    std::vector<zvDifferenceGroup> moved = zvCandidateOrder::changes(before, after, matching);
    std::move(moved.begin(), moved.end(), std::back_inserter(section.groups));
    add(std::move(section));
}

void zvConfigurationComparison::compareLifecycles(const Parts& before, const Parts& after) {
    zvPartMatching matching(before, after);
    matching.matchByNames();
    zvDifferenceSection section{"lifecycles", "Lifecycles", groups(before, after, matching)};
    for (zvDifferenceGroup& group : section.groups) {
        for (std::size_t i = 0; group.change == zvChange::changed && i < after.size(); ++i) {
            if (after[i].title() == group.title) {
                const auto old = static_cast<std::size_t>(matching.oldOf(i));
                std::vector<zvDifference> ways = zvLifecycleWays::changes(before[old], after[i]);
                std::move(ways.begin(), ways.end(), std::back_inserter(group.differences));
            }
        }
    }
    add(std::move(section));
}

void zvConfigurationComparison::addOutcomes(const std::vector<zvCaseOutcome>& before,
                                            const std::vector<zvCaseOutcome>& after) {
    zvDifferenceSection section{"cases", "Cases", {}};
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (before[i].text == after[i].text) {
            continue;
        }
        zvDifference outcome;
        outcome.property = zvDifference::outcome;
        outcome.before = before[i].text.c_str();
        outcome.after = after[i].text.c_str();
        zvDifferenceGroup group;
        group.title = after[i].title.c_str();
        group.placeBefore.line = before[i].line;
        group.placeAfter.line = after[i].line;
        group.differences.push_back(outcome);
        section.groups.push_back(group);
    }
    add(std::move(section));
}

void zvConfigurationComparison::add(zvDifferenceSection section) {
    if (!section.groups.empty()) {
        m_sections.push_back(std::move(section));
    }
}

// Those with a difference.
std::vector<zvDifferenceGroup> zvConfigurationComparison::groups(const Parts& before, const Parts& after,
                                                                 const zvPartMatching& matching) {
    std::vector<zvDifferenceGroup> result;
    const auto compare = [&result](const zvComparedPart* old, const zvComparedPart* now) {
        zvDifferenceGroup group = groupOf(old, now);
        if (!group.differences.empty()) {
            result.push_back(std::move(group));
        }
    };
    for (std::size_t i = 0; i < after.size(); ++i) {
        const int old = matching.oldOf(i);
        compare(old == zvPartMatching::none ? nullptr : &before[static_cast<std::size_t>(old)], &after[i]);
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (matching.newOf(i) == zvPartMatching::none) {
            compare(&before[i], nullptr);
        }
    }
    return result;
}

std::size_t zvConfigurationComparison::count() const {
    std::size_t count = 0;
    for (const zvDifferenceSection& section : m_sections) {
        for (const zvDifferenceGroup& group : section.groups) {
            count += group.differences.size();
        }
    }
    return count;
}
