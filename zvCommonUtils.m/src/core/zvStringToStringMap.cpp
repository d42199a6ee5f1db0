#include "zvStringToStringMap.h"

#include <utility>

#include "zvMapIndex.h"

zvStringToStringMap::zvStringToStringMap() = default;

zvStringToStringMap::zvStringToStringMap(const zvStringToStringMap& other) = default;

zvStringToStringMap& zvStringToStringMap::operator=(const zvStringToStringMap& other) {
    copy(other);
    return *this;
}

zvStringToStringMap::~zvStringToStringMap() = default;

bool zvStringToStringMap::add(const zvString& key, const zvString& value) {
    const bool isNew = m_map.emplace(key, value).second;
    m_cursor.forget();
    return isNew;
}

bool zvStringToStringMap::add(zvString&& key, zvString&& value) {
    const bool isNew = m_map.try_emplace(std::move(key), std::move(value)).second;
    m_cursor.forget();
    return isNew;
}

void zvStringToStringMap::setValue(const zvString& key, const zvString& value) {
    if (m_map.insert_or_assign(key, value).second) {
        m_cursor.forget();
    }
}

zvString zvStringToStringMap::getValue(const zvString& key) const {
    const auto* const value = zvMapFind(m_map, key);
    return value == nullptr ? zvString() : zvString(*value);
}

zvString zvStringToStringMap::getKey(int i) const {
    const auto* const entry = m_cursor.entryAt(m_map, i);
    return entry == nullptr ? zvString() : zvString(entry->first);
}

zvString zvStringToStringMap::getValue(int i) const {
    const auto* const entry = m_cursor.entryAt(m_map, i);
    return entry == nullptr ? zvString() : zvString(entry->second);
}

int zvStringToStringMap::size() const { return static_cast<int>(m_map.size()); }

void zvStringToStringMap::clear() {
    m_map.clear();
    m_cursor.forget();
}

void zvStringToStringMap::copy(const zvStringToStringMap& other) {
    auto whole = other.m_map;
    m_map.swap(whole);
    m_cursor.forget();
}
