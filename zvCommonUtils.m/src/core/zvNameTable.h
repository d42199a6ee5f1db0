#ifndef ZV_NAME_TABLE_H
#define ZV_NAME_TABLE_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "zvStringUnits.h"
#include "zvStringView.h"

/// A hash table from names, which it borrows, to small values. Entries are added, never removed.
///
/// An entry is in one of the few slots that follow its hash. One that finds them all taken goes into a tree,
/// so that names crafted to collide cost no more than in a tree.
template <typename Mapped>
class zvNameTable {
public:
    zvNameTable() : m_slots(fewestSlots) {}

    /// What `name`, which has this hash, stands for; null for a missing name.
    const Mapped* find(zvStringView name, std::uint32_t hash) const {
        const Slot& slot = m_slots[hash & m_last];
        return isOf(slot, name, hash) ? &slot.mapped : findFurther(name, hash);
    }

    /// False, with nothing changed, for a name that is there already. Strong guarantee. Preconditions: the
    /// name has this hash, and outlives the table.
    bool add(zvStringView name, std::uint32_t hash, const Mapped& mapped) {
        reserve(m_count + 1);
        const bool isNew = settle({name.data(), static_cast<int>(name.size()), hash, mapped});
        m_count += isNew ? 1 : 0;
        return isNew;
    }

    /// Makes room for `count` entries in all.
    void reserve(std::size_t count) {
        std::size_t size = m_slots.size();
        while (size < count * slotsOfAnEntry) {
            size *= 2;
        }
        if (size != m_slots.size()) {
            zvNameTable larger(size);
            forEachSlot([&larger](const Slot& slot) { larger.settle(slot); });
            larger.m_count = m_count;
            swap(larger);
        }
    }

    /// Calls `visit(zvStringView name, std::uint32_t hash, const Mapped& mapped)` for every entry.
    template <typename Visit>
    void forEach(Visit visit) const {
        forEachSlot([&visit](const Slot& slot) {
            visit(zvStringView(slot.units, static_cast<std::size_t>(slot.length)), slot.hash, slot.mapped);
        });
    }

    void swap(zvNameTable& other) noexcept {
        m_slots.swap(other.m_slots);
        m_crowded.swap(other.m_crowded);
        std::swap(m_last, other.m_last);
        std::swap(m_count, other.m_count);
    }

private:
    static constexpr std::size_t fewestSlots = 16;
    static constexpr std::size_t slotsOfAnEntry = 2;
    static constexpr std::size_t probes = 4;
    static constexpr int free = -1;

    struct Slot {
        const wchar16* units = nullptr;
        int length = free;
        std::uint32_t hash = 0;
        Mapped mapped = {};
    };

    explicit zvNameTable(std::size_t size) : m_slots(size), m_last(size - 1) {}

    static bool isOf(const Slot& slot, zvStringView name, std::uint32_t hash) {
        return slot.hash == hash && slot.length == static_cast<int>(name.size()) &&
               zvStringUnits::areEqual(slot.units, name.data(), slot.length);
    }

    // By itself, so that the usual look-up is short.
    [[gnu::noinline]] const Mapped* findFurther(zvStringView name, std::uint32_t hash) const {
        for (std::size_t at = hash; at < std::size_t{hash} + probes; ++at) {
            const Slot& slot = m_slots[at & m_last];
            if (slot.length == free) {
                return nullptr;
            }
            if (isOf(slot, name, hash)) {
                return &slot.mapped;
            }
        }
        const auto found = m_crowded.find(name);
        return found == m_crowded.end() ? nullptr : &found->second.mapped;
    }

    template <typename Visit>
    void forEachSlot(Visit visit) const {
        for (const Slot& slot : m_slots) {
            if (slot.length != free) {
                visit(slot);
            }
        }
        for (const auto& [name, slot] : m_crowded) {
            visit(slot);
        }
    }

    bool settle(const Slot& entry) {
        const zvStringView name(entry.units, static_cast<std::size_t>(entry.length));
        for (std::size_t at = entry.hash; at < std::size_t{entry.hash} + probes; ++at) {
            Slot& slot = m_slots[at & m_last];
            if (slot.length == free) {
                slot = entry;
                return true;
            }
            if (isOf(slot, name, entry.hash)) {
                return false;
            }
        }
        return m_crowded.emplace(name, entry).second;
    }

    std::vector<Slot> m_slots;  // a power of two of them
    std::map<zvStringView, Slot> m_crowded;
    std::size_t m_last = fewestSlots - 1;
    std::size_t m_count = 0;
};

#endif
