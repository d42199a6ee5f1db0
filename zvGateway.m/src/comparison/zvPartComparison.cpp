#include "zvPartComparison.h"

#include "zvPartMatching.h"
#include "zvRuleForms.h"

namespace {

using Differences = std::vector<zvDifference>;

zvString toText(std::string_view word) { return {word.data(), static_cast<int>(word.size())}; }

zvTextPosition placeOf(const zvComparedPart* part) {
    return part == nullptr ? zvTextPosition() : part->position;
}

class Comparison {
public:
    explicit Comparison(Differences& differences) : m_differences(differences) {}

    // `path` names the part within its group; empty for the group itself.
    void compare(const zvComparedPart* before, const zvComparedPart* after, const zvString& path) {
        if (before == nullptr || after == nullptr) {
            addWhole(before, after, path);
        } else {
            compareProperties(*before, *after, path);
        }
        compareRules(before, after);
        static const zvComparedPart none;
        const zvComparedPart& old = before == nullptr ? none : *before;
        const zvComparedPart& now = after == nullptr ? none : *after;
        zvPartMatching matching(old.parts, now.parts);
        matching.matchByNames();
        for (std::size_t i = 0; i < now.parts.size(); ++i) {
            const int other = matching.oldOf(i);
            const zvComparedPart* const was =
                other == zvPartMatching::none ? nullptr : &old.parts[static_cast<std::size_t>(other)];
            if (was == nullptr || !isPlainlyEqual(*was, now.parts[i])) {
                compare(was, &now.parts[i], below(path, now.parts[i]));
            }
        }
        for (std::size_t i = 0; i < old.parts.size(); ++i) {
            if (matching.newOf(i) == zvPartMatching::none) {
                compare(&old.parts[i], nullptr, below(path, old.parts[i]));
            }
        }
        compareTransitionOrder(old, now, matching, path);
    }

private:
    // Most parts: nothing has to be made of their names.
    static bool isPlainlyEqual(const zvComparedPart& before, const zvComparedPart& after) {
        return before.parts.empty() && after.parts.empty() && before.properties == after.properties;
    }

    static zvString below(const zvString& path, const zvComparedPart& part) {
        return path.empty() ? part.title() : path + ", " + part.title();
    }

    zvDifference& add(zvChange change, const zvComparedPart* before, const zvComparedPart* after,
                      const zvString& path) {
        zvDifference difference;
        difference.change = change;
        difference.part = path;
        difference.placeBefore = placeOf(before);
        difference.placeAfter = placeOf(after);
        m_differences.push_back(difference);
        return m_differences.back();
    }

    void addWhole(const zvComparedPart* before, const zvComparedPart* after, const zvString& path) {
        zvDifference& whole =
            add(before == nullptr ? zvChange::added : zvChange::removed, before, after, path);
        (before == nullptr ? whole.after : whole.before) =
            (before == nullptr ? after : before)->description();
    }

    void addProperty(const zvComparedPart& before, const zvComparedPart& after, const zvString& path,
                     const zvString& property, const zvString& from, const zvString& to) {
        zvDifference& difference = add(zvChange::changed, &before, &after, path);
        difference.property = property;
        difference.before = from;
        difference.after = to;
    }

    void compareProperties(const zvComparedPart& before, const zvComparedPart& after, const zvString& path) {
        if (before.properties == after.properties) {
            return;
        }
        for (const zvComparedPart::Property& property : after.properties) {
            const zvString* const was = before.find(property.name);
            if (was == nullptr ? !property.value().empty() : *was != property.value()) {
                addProperty(before, after, path, toText(property.name), was == nullptr ? zvString() : *was,
                            property.value());
            }
        }
        for (const zvComparedPart::Property& property : before.properties) {
            if (!property.value().empty() && after.find(property.name) == nullptr) {
                addProperty(before, after, path, toText(property.name), property.value(), zvString());
            }
        }
    }

    void compareRules(const zvComparedPart* before, const zvComparedPart* after) {
        const bool hadRule = before != nullptr && !before->rule.IsNull();
        const bool hasRule = after != nullptr && !after->rule.IsNull();
        if ((!hadRule && !hasRule) || (hadRule && hasRule && before->ruleText == after->ruleText)) {
            return;
        }
        static const zvComparedPart none;
        zvRuleForms forms(before == nullptr ? none : *before, after == nullptr ? none : *after);
        const int was = hadRule ? forms.add(before->rule) : -1;
        const int is = hasRule ? forms.add(after->rule) : -1;
        if (was == is) {
            return;
        }
        using Lines = std::vector<zvTreeLine>;
        zvDifference& rule = add(!hadRule   ? zvChange::added
                                 : !hasRule ? zvChange::removed
                                            : zvChange::changed,
                                 before, after, zvString());
        rule.property = "MappingRule";
        rule.before = hadRule ? before->ruleText : zvString();
        rule.after = hasRule ? after->ruleText : zvString();
        rule.before.trim();
        rule.after.trim();
        rule.rule = zvAlign(hadRule ? forms.lines(was) : Lines(), hasRule ? forms.lines(is) : Lines());
    }

    // Of several ways of one length the first transition decides which comes first.
    void compareTransitionOrder(const zvComparedPart& before, const zvComparedPart& after,
                                const zvPartMatching& matching, const zvString& path) {
        int last = -1;
        bool isMoved = false;
        zvString was;
        zvString is;
        const auto append = [](zvString& list, const zvComparedPart& part) {
            if (part.kind == "transition") {
                list += (list.empty() ? "" : ", ") + part.title();
            }
        };
        for (const zvComparedPart& part : before.parts) {
            append(was, part);
        }
        for (std::size_t i = 0; i < after.parts.size(); ++i) {
            append(is, after.parts[i]);
            const int old = after.parts[i].kind == "transition" ? matching.oldOf(i) : zvPartMatching::none;
            if (old != zvPartMatching::none) {
                isMoved = isMoved || old < last;
                last = old;
            }
        }
        if (isMoved) {
            addProperty(before, after, path, zvDifference::orderOfTransitions, was, is);
        }
    }

    Differences& m_differences;
};

}  // namespace

std::vector<zvDifference> zvPartComparison::differences(const zvComparedPart* before,
                                                        const zvComparedPart* after) {
    Differences differences;
    Comparison(differences).compare(before, after, zvString());
    return differences;
}
