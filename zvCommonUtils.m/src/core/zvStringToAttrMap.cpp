#include "zvStringToAttrMap.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <vector>

#include "zvKeptString.h"
#include "zvMapCursor.h"
#include "zvMapIndex.h"

class zvStringToAttrMapImpl {
public:
    using Attributes = std::map<zvKeptString, zvAttribute, std::less<>>;

    zvStringToAttrMapImpl() = default;
    zvStringToAttrMapImpl(const zvStringToAttrMapImpl& other) : m_attributes(other.m_attributes) {
        makeSlots(other.m_slots.size());
    }
    zvStringToAttrMapImpl& operator=(const zvStringToAttrMapImpl&) = delete;

    void swap(zvStringToAttrMapImpl& other) noexcept {
        m_attributes.swap(other.m_attributes);
        m_slots.swap(other.m_slots);
        m_cursor.forget();
        other.m_cursor.forget();
    }

    int size() const { return static_cast<int>(m_attributes.size()); }
    const Attributes::value_type* entryAt(int i) const { return m_cursor.entryAt(m_attributes, i); }

    zvAttribute* find(const zvString& key) {
        if (m_slots.empty()) {
            return nullptr;
        }
        Attributes::value_type* const entry = m_slots[slotOf(key)];
        if (entry == nullptr) {
            return nullptr;
        }
        return entry->first == key ? &entry->second : zvMapFind(m_attributes, key);
    }

    // Precondition: the key is new. Strong guarantee: the cache grows before the entry is added.
    void add(const zvString& key, const zvAttribute& attribute) {
        if ((m_attributes.size() + 1) * slotsOfAnEntry > m_slots.size()) {
            makeSlots(std::max(fewestSlots, m_slots.size() * 2));
        }
        settle(*m_attributes.emplace(key, attribute).first);
        m_cursor.forget();
    }

private:
    using Slots = std::vector<Attributes::value_type*>;

    // Powers of two, large enough for few collisions.
    static constexpr std::size_t fewestSlots = 8;
    static constexpr std::size_t slotsOfAnEntry = 4;

    // The 32-bit FNV-1a hash, with the high bits folded into those that select the slot.
    std::size_t slotOf(const zvString& key) const {
        std::uint32_t hash = 2166136261U;
        for (int i = 0; i < key.size(); ++i) {
            hash = (hash ^ key.data()[i]) * 16777619U;
        }
        return (hash ^ hash >> 16U) & (m_slots.size() - 1);
    }

    void settle(Attributes::value_type& entry) {
        auto& slot = m_slots[slotOf(entry.first)];
        slot = slot == nullptr ? &entry : slot;
    }

    void makeSlots(std::size_t count) {
        Slots(count).swap(m_slots);
        for (auto& entry : m_attributes) {
            settle(entry);
        }
    }

    Attributes m_attributes;
    zvMapCursor<Attributes> m_cursor;
    // A hash cache over the tree. A slot holds the first entry whose hash selects it, so that an empty slot
    // means a missing key. A collision falls back to the tree, so that keys crafted to collide cost no more
    // than without the cache.
    Slots m_slots;
};

zvStringToAttrMap::zvStringToAttrMap() : m_pImpl(new zvStringToAttrMapImpl) {}

zvStringToAttrMap::zvStringToAttrMap(const zvStringToAttrMap& other)
    : m_pImpl(new zvStringToAttrMapImpl(*other.m_pImpl)) {}

zvStringToAttrMap& zvStringToAttrMap::operator=(const zvStringToAttrMap& other) {
    if (this != &other) {
        zvStringToAttrMapImpl(*other.m_pImpl).swap(*m_pImpl);
    }
    return *this;
}

zvStringToAttrMap::~zvStringToAttrMap() { delete m_pImpl; }

bool zvStringToAttrMap::addAttr(const zvString& key, const zvAttribute& attribute) {
    const bool isNew = m_pImpl->find(key) == nullptr;
    if (isNew) {
        m_pImpl->add(key, attribute);
    }
    return isNew;
}

void zvStringToAttrMap::updateAttr(const zvString& key, const zvAttribute& attribute) {
    if (zvAttribute* const present = m_pImpl->find(key)) {
        *present = attribute;
    } else {
        m_pImpl->add(key, attribute);
    }
}

const zvAttribute* zvStringToAttrMap::findAttr(const zvString& key) const { return m_pImpl->find(key); }

bool zvStringToAttrMap::getAttr(const zvString& key, zvAttribute& out) const {
    const zvAttribute* const attribute = findAttr(key);
    if (attribute != nullptr) {
        out = *attribute;
    }
    return attribute != nullptr;
}

bool zvStringToAttrMap::getAttr(int i, zvAttribute& out) const {
    const auto* const entry = m_pImpl->entryAt(i);
    if (entry != nullptr) {
        out = entry->second;
    }
    return entry != nullptr;
}

bool zvStringToAttrMap::getAttrName(int i, zvString& out) const {
    const auto* const entry = m_pImpl->entryAt(i);
    if (entry != nullptr) {
        out = entry->first;
    }
    return entry != nullptr;
}

int zvStringToAttrMap::size() const { return m_pImpl->size(); }
