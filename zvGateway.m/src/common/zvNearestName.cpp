#include "zvNearestName.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "zvConsole.h"

namespace {

constexpr int longestName = 64;

wchar16 toLower(wchar16 unit) {
    return unit >= u'A' && unit <= u'Z' ? static_cast<wchar16>(unit + (u'a' - u'A')) : unit;
}

// The number of characters to be inserted, removed or replaced (Levenshtein).
int distance(const zvString& left, const zvString& right) {
    std::vector<int> row(static_cast<std::size_t>(right.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < left.size(); ++i) {
        int diagonal = row[0];
        row[0] = i + 1;
        for (int j = 0; j < right.size(); ++j) {
            int& cell = row[static_cast<std::size_t>(j) + 1];
            const int replaced = diagonal + (toLower(left[i]) == toLower(right[j]) ? 0 : 1);
            diagonal = cell;
            cell = std::min({replaced, cell + 1, row[static_cast<std::size_t>(j)] + 1});
        }
    }
    return row.back();
}

}  // namespace

zvString zvNearestName::find(const zvString& name, const std::vector<zvString>& known) {
    const zvString* nearest = nullptr;
    int least = std::max(1, (name.size() + 1) / 3) + 1;
    for (const zvString& candidate : known) {
        const bool canBeNearer =
            name.size() <= longestName && std::abs(candidate.size() - name.size()) < least;
        const int difference = canBeNearer ? distance(name, candidate) : least;
        if (difference < least) {
            least = difference;
            nearest = &candidate;
        }
    }
    return nearest == nullptr ? zvString() : *nearest;
}

std::string zvNearestName::question(const zvString& found) {
    return found.empty() ? "" : "; did you mean \"" + zvConsole::printable(found) + "\"?";
}

std::string zvNearestName::suggestion(const zvString& name, const std::vector<zvString>& known) {
    return question(find(name, known));
}
