#ifndef ZV_STRING_TO_ATTR_MAP_IMPL_H
#define ZV_STRING_TO_ATTR_MAP_IMPL_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <utility>

#include "zvAttribute.h"
#include "zvKeptString.h"
#include "zvMapCursor.h"
#include "zvNamePositions.h"
#include "zvNameTable.h"

/// The attributes of a zvStringToAttrMap, and the values that a zvCndContext borrows beside them. An ordered
/// map owns the attributes; a hash table finds them all.
class zvStringToAttrMapImpl {
public:
    using Attributes = std::map<zvKeptString, zvAttribute, std::less<>>;

    zvStringToAttrMapImpl() = default;
    zvStringToAttrMapImpl(const zvStringToAttrMapImpl& other)
        : m_attributes(other.m_attributes), m_pNames(other.m_pNames), m_pValues(other.m_pValues) {
        for (auto& entry : m_attributes) {
            settle(entry);
        }
        other.m_table.forEach([this](zvStringView name, std::uint32_t hash, const Found& found) {
            if (found.attribute == nullptr) {
                m_table.add(name, hash, found);
            }
        });
    }
    zvStringToAttrMapImpl& operator=(const zvStringToAttrMapImpl&) = delete;

    void swap(zvStringToAttrMapImpl& other) noexcept {
        m_attributes.swap(other.m_attributes);
        m_table.swap(other.m_table);
        std::swap(m_pNames, other.m_pNames);
        std::swap(m_pValues, other.m_pValues);
        m_cursor.forget();
        other.m_cursor.forget();
    }

    /// Of the attributes alone.
    int size() const { return static_cast<int>(m_attributes.size()); }
    const Attributes::value_type* entryAt(int i) const { return m_cursor.entryAt(m_attributes, i); }

    /// Null for a missing key, and for that of a borrowed value.
    zvAttribute* find(const zvString& key) const {
        const Found* const found = m_table.find(viewOf(key), zvStringUnits::hashOf(key));
        return found == nullptr ? nullptr : found->attribute;
    }
    /// The value of `name`, which has this hash, whether borrowed or not; null for a missing name.
    const zvValue* findValue(const zvString& name, std::uint32_t hash) const {
        const zvValue* const positioned = findPositioned(name, hash);
        return positioned != nullptr ? positioned : findByName(name, hash);
    }

    /// Strong guarantee. Precondition: the key is new.
    zvAttribute& add(const zvString& key, const zvAttribute& attribute) {
        const auto added = m_attributes.emplace(key, attribute).first;
        m_cursor.forget();
        try {
            settle(*added);
        } catch (...) {
            m_attributes.erase(added);
            throw;
        }
        return added->second;
    }

    /// False, with nothing changed, if there is such a name already. Name and value have to outlive this
    /// object and its copies.
    bool borrow(const zvString& name, const zvValue& value) {
        const std::uint32_t hash = zvStringUnits::hashOf(name);
        return findPositioned(name, hash) == nullptr && m_table.add(viewOf(name), hash, {&value, nullptr});
    }
    /// Values by the positions of their names, found before all others; null for a name without one. They
    /// have to outlive this object and its copies.
    void borrow(const zvNamePositions& names, const zvValue* const* values) {
        m_pNames = &names;
        m_pValues = values;
    }

    void reserve(int count) { m_table.reserve(static_cast<std::size_t>(std::max(count, 0))); }

private:
    struct Found {
        const zvValue* value;
        zvAttribute* attribute;  // null for a borrowed value
    };

    const zvValue* findPositioned(const zvString& name, std::uint32_t hash) const {
        const int position = m_pNames == nullptr ? -1 : m_pNames->find(name, hash);
        return position < 0 ? nullptr : m_pValues[position];
    }
    // By itself, so that the look-up by position is short.
    [[gnu::noinline]] const zvValue* findByName(const zvString& name, std::uint32_t hash) const {
        const Found* const found = m_table.find(viewOf(name), hash);
        return found == nullptr ? nullptr : found->value;
    }

    void settle(Attributes::value_type& entry) {
        m_table.add(viewOf(entry.first), zvStringUnits::hashOf(entry.first),
                    {&entry.second.value(), &entry.second});
    }

    Attributes m_attributes;
    zvMapCursor<Attributes> m_cursor;
    zvNameTable<Found> m_table;
    const zvNamePositions* m_pNames = nullptr;
    const zvValue* const* m_pValues = nullptr;
};

#endif
