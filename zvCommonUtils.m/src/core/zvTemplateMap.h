#ifndef ZV_TEMPLATE_MAP_H
#define ZV_TEMPLATE_MAP_H

#include <map>

/// An ordered map whose lookup reports whether the key exists.
template <typename Key, typename Value>
class zvTemplateMap {
public:
    /// False, with nothing changed, if the key exists already.
    bool insert(const Key& key, const Value& value) { return m_map.emplace(key, value).second; }

    /// Copies the value into `out`; false, with `out` unchanged, for a missing key.
    bool find(const Key& key, Value& out) const {
        const auto found = m_map.find(key);
        if (found != m_map.end()) {
            out = found->second;
        }
        return found != m_map.end();
    }

    int size() const { return static_cast<int>(m_map.size()); }

private:
    std::map<Key, Value> m_map;
};

#endif
