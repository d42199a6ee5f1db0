#ifndef ZV_DIFFERENCE_H
#define ZV_DIFFERENCE_H

#include <string_view>
#include <vector>

#include "zvAlignedLine.h"
#include "zvFinding.h"

enum class zvChange { added, removed, changed };

/// One thing that differs between two configurations.
struct zvDifference {
    /// Properties whose values are more than one text, and which are no words of the configuration file.
    static constexpr char order[] = "order";
    static constexpr char orderOfTransitions[] = "order of transitions";
    static constexpr char waysTo[] = "ways to";
    static constexpr char outcome[] = "outcome";

    zvChange change = zvChange::changed;
    /// The part, as in `attribute "rev"`; empty for the group itself.
    zvString part;
    /// What of the part has changed; empty for a part that was added or removed.
    zvString property;
    /// The values, or what the part had; empty where there was none.
    zvString before;
    zvString after;
    /// Of a mapping rule: both beside each other.
    std::vector<zvAlignedLine> rule;
    /// Where the part begins; unknown where it is not, or has no place.
    zvTextPosition placeBefore;
    zvTextPosition placeAfter;
};

/// What differs in one object, collection of views or lifecycle.
struct zvDifferenceGroup {
    /// As in `object "Part" -> "ReleasedPart"`.
    zvString title;
    zvChange change = zvChange::changed;
    zvTextPosition placeBefore;
    zvTextPosition placeAfter;
    std::vector<zvDifference> differences;
};

struct zvDifferenceSection {
    const char* id = "";
    const char* name = "";
    std::vector<zvDifferenceGroup> groups;
};

#endif
