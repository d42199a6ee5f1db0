#include "zvCandidateOrder.h"

#include <algorithm>
#include <map>

namespace {

using Objects = std::vector<zvComparedPart>;
using Candidates = std::map<zvString, std::vector<std::size_t>>;

struct System {
    const char* type;
    const char* otherType;
    const char* title;
};
constexpr System systems[] = {{"LocalCustType", "RemoteCustType", "candidates of the local type \""},
                              {"RemoteCustType", "LocalCustType", "candidates of the remote type \""}};

Candidates candidatesOf(const Objects& objects, const char* type) {
    Candidates candidates;
    for (std::size_t i = 0; i < objects.size(); ++i) {
        if (const zvString& value = *objects[i].find(type); !value.empty()) {
            candidates[value].push_back(i);
        }
    }
    return candidates;
}

zvString listOf(const Objects& objects, const std::vector<std::size_t>& places, const char* type) {
    zvString list;
    for (const std::size_t place : places) {
        list += (list.empty() ? "\"" : ", \"") + *objects[place].find(type) + "\"";
    }
    return list;
}

}  // namespace

std::vector<zvDifferenceGroup> zvCandidateOrder::changes(const Objects& before, const Objects& after,
                                                         const zvPartMatching& matching) {
    std::vector<zvDifferenceGroup> groups;
    for (const System& system : systems) {
        const Candidates old = candidatesOf(before, system.type);
        for (const auto& [type, places] : candidatesOf(after, system.type)) {
            const auto found = old.find(type);
            // What was there before, in the new order.
            std::vector<int> known;
            for (const std::size_t place : places) {
                const int was = matching.oldOf(place);
                if (was != zvPartMatching::none &&
                    *before[static_cast<std::size_t>(was)].find(system.type) == type) {
                    known.push_back(was);
                }
            }
            const bool isJoined = known.size() < places.size();
            if (known.empty() || (!isJoined && std::is_sorted(known.begin(), known.end()))) {
                continue;
            }
            zvDifference order;
            order.property = zvDifference::order;
            order.before = listOf(before, found->second, system.otherType);
            order.after = listOf(after, places, system.otherType);
            zvDifferenceGroup group;
            group.title = system.title + type + "\"";
            group.placeBefore = before[found->second.front()].position;
            group.placeAfter = after[places.front()].position;
            group.differences.push_back(order);
            groups.push_back(group);
        }
    }
    return groups;
}
