#ifndef ZV_CFG_NAME_INDEX_H
#define ZV_CFG_NAME_INDEX_H

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <utility>
#include <vector>

#include "zvCfgAttribute.h"

/// An object's attributes by one of their names, as it was when they were added: a sorted list, which takes
/// few blocks of memory, while there are few of them, and a tree when there are many.
class zvCfgNameIndex {
public:
    using Name = zvCfgAttribute::SharedName;

    /// False, with nothing changed, for a name that is taken. Precondition: the name is not null.
    bool add(const Name& name, zvCfgAttribute* attribute) {
        if (m_few.size() < mostOfFew && m_many.empty()) {
            return addToFew({name, attribute});
        }
        if (m_many.empty()) {
            Tree(m_few.begin(), m_few.end()).swap(m_many);
            m_few.clear();
        }
        return m_many.emplace(name, attribute).second;
    }

    /// Null for a missing name.
    const zvCfgAttribute* find(const zvString& name) const {
        if (m_many.empty()) {
            const auto place = placeOf(name);
            return place != m_few.end() && *place->first == name ? place->second : nullptr;
        }
        const auto found = m_many.find(name);
        return found == m_many.end() ? nullptr : found->second;
    }

    int size() const { return static_cast<int>(m_few.size() + m_many.size()); }
    /// In the order of the names; null if `i` is out of range. Linear for many.
    const zvCfgAttribute* at(int i) const {
        if (i < 0 || i >= size()) {
            return nullptr;
        }
        return m_many.empty() ? m_few[static_cast<std::size_t>(i)].second
                              : std::next(m_many.begin(), i)->second;
    }

private:
    static constexpr std::size_t usual = 16;
    static constexpr std::size_t mostOfFew = 64;

    struct ByText {
        using is_transparent = void;
        static const zvString& textOf(const zvString& text) { return text; }
        static const zvString& textOf(const Name& name) { return *name; }
        template <typename Left, typename Right>
        bool operator()(const Left& left, const Right& right) const {
            return textOf(left) < textOf(right);
        }
    };

    using Entry = std::pair<Name, zvCfgAttribute*>;
    using Tree = std::map<Name, zvCfgAttribute*, ByText>;

    std::vector<Entry>::const_iterator placeOf(const zvString& name) const {
        return std::lower_bound(
            m_few.begin(), m_few.end(), name,
            [](const Entry& entry, const zvString& sought) { return *entry.first < sought; });
    }

    bool addToFew(const Entry& entry) {
        if (m_few.empty()) {
            m_few.reserve(usual);
        }
        const auto place = placeOf(*entry.first);
        const bool isFree = place == m_few.end() || *place->first != *entry.first;
        if (isFree) {
            m_few.insert(place, entry);
        }
        return isFree;
    }

    std::vector<Entry> m_few;
    Tree m_many;
};

#endif
