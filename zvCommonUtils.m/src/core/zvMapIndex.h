#ifndef ZV_MAP_INDEX_H
#define ZV_MAP_INDEX_H

#include <iterator>

/// Entry `i` of an ordered map; null for an index out of range.
template <typename Map>
const typename Map::value_type* zvMapEntryAt(const Map& map, int i) {
    return i >= 0 && i < static_cast<int>(map.size()) ? &*std::next(map.begin(), i) : nullptr;
}

/// The value of `key`; null for a missing key.
template <typename Map, typename Key>
auto* zvMapFind(Map& map, const Key& key) {
    const auto found = map.find(key);
    return found == map.end() ? nullptr : &found->second;
}

#endif
