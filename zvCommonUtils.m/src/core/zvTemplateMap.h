#ifndef ZV_TEMPLATE_MAP_H
#define ZV_TEMPLATE_MAP_H

#include <map>

/// An ordered map whose lookup reports presence.
template <typename Key, typename Value>
class zvTemplateMap {
public:
    /// False, with nothing changed, when the key is there already.
    bool insert(const Key& key, const Value& value) { return m_map.emplace(key, value).second; }

    /// Copies the value into `out`; false, with `out` untouched, when the key is absent.
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
