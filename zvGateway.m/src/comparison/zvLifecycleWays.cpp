#include "zvLifecycleWays.h"

#include <map>
#include <set>

namespace {

// Of larger lifecycles only the transitions are compared: the ways grow as the square of the states.
constexpr std::size_t mostStates = 500;

using Names = std::set<zvString>;

const zvString& nameOf(const zvComparedPart& state) { return state.properties.front().value(); }

class Ways {
public:
    explicit Ways(const zvComparedPart& lifecycle) {
        for (const zvComparedPart& state : lifecycle.parts) {
            m_states.try_emplace(nameOf(state), &state);
        }
    }

    bool has(const zvString& name) const { return m_states.count(name) > 0; }

    // The states to which transitions lead, and to which further ones lead from there.
    Names reachedFrom(const zvString& first) const {
        Names reached;
        std::vector<zvString> open{first};
        while (!open.empty()) {
            const zvComparedPart& state = *m_states.at(open.back());
            open.pop_back();
            for (const zvComparedPart& part : state.parts) {
                if (part.kind == "transition" && reached.insert(nameOf(part)).second) {
                    open.push_back(nameOf(part));
                }
            }
        }
        return reached;
    }

private:
    std::map<zvString, const zvComparedPart*> m_states;
};

// What the one reaches and the other does not, of the states that the other one has.
zvString missing(const Names& reached, const Names& others, const Ways& other) {
    zvString list;
    for (const zvString& name : reached) {
        if (others.count(name) == 0 && other.has(name)) {
            list += (list.empty() ? "\"" : ", \"") + name + "\"";
        }
    }
    return list;
}

}  // namespace

std::vector<zvDifference> zvLifecycleWays::changes(const zvComparedPart& before,
                                                   const zvComparedPart& after) {
    std::vector<zvDifference> result;
    if (before.parts.size() > mostStates || after.parts.size() > mostStates) {
        return result;
    }
    const Ways old(before);
    const Ways now(after);
    for (const zvComparedPart& state : after.parts) {
        if (!old.has(nameOf(state))) {
            continue;
        }
        const Names was = old.reachedFrom(nameOf(state));
        const Names is = now.reachedFrom(nameOf(state));
        zvDifference ways;
        ways.part = state.title();
        ways.property = zvDifference::waysTo;
        ways.before = missing(was, is, now);
        ways.after = missing(is, was, old);
        ways.placeAfter = state.position;
        if (!ways.before.empty() || !ways.after.empty()) {
            result.push_back(ways);
        }
    }
    return result;
}
