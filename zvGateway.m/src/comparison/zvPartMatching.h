#ifndef ZV_PART_MATCHING_H
#define ZV_PART_MATCHING_H

#include <vector>

#include "zvComparedPart.h"

/// Which part of an old configuration is which of a new one. Parts are given by their places.
class zvPartMatching {
public:
    using Parts = std::vector<zvComparedPart>;
    static constexpr int none = -1;

    zvPartMatching(const Parts& before, const Parts& after);

    /// Matches parts of one kind by each of their names in turn, equal names in their order.
    void matchByNames();
    /// Matches objects by their types; those of the same types by their content as far as it is the same.
    /// What is left is matched by one type, if all else is the same.
    void matchObjects();

    /// The other configuration's part; none for one that was added or removed.
    int oldOf(std::size_t after) const { return m_oldOf[after]; }
    int newOf(std::size_t before) const { return m_newOf[before]; }

private:
    template <class KeyOf>
    void matchBy(KeyOf keyOf);
    bool isSameSequence() const;

    const Parts& m_before;
    const Parts& m_after;
    std::vector<int> m_oldOf;
    std::vector<int> m_newOf;
};

#endif
