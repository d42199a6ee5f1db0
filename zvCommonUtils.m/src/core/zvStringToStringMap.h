#ifndef ZV_STRING_TO_STRING_MAP_H
#define ZV_STRING_TO_STRING_MAP_H

#include <functional>
#include <map>

#include "zvKeptString.h"
#include "zvMapCursor.h"

/// An ordered map from string to string, with unique keys. Indices follow the order of the keys; access by
/// index walks from where it last was, so that a loop over all indices is linear.
class ZV_EXPORT zvStringToStringMap {
public:
    zvStringToStringMap();
    zvStringToStringMap(const zvStringToStringMap& other);
    zvStringToStringMap& operator=(const zvStringToStringMap& other);
    virtual ~zvStringToStringMap();

    /// False, with nothing changed, if the key exists already.
    bool add(const zvString& key, const zvString& value);
    bool add(zvString&& key, zvString&& value);
    /// Adds or replaces.
    void setValue(const zvString& key, const zvString& value);
    /// The value of `key`; empty also for a missing key.
    zvString getValue(const zvString& key) const;
    /// @name Entry `i` in key order
    /// Its key and its value; empty if `i` is out of range.
    /// @{
    zvString getKey(int i) const;
    zvString getValue(int i) const;
    /// @}

    int size() const;
    /// Calls `visit(key, value)` for every entry in key order, in linear time.
    template <typename Visit>
    void forEach(Visit visit) const {
        for (const auto& entry : m_map) {
            visit(entry.first, entry.second);
        }
    }
    void clear();
    /// Replaces the content with a copy of the other's.
    void copy(const zvStringToStringMap& other);

private:
    using Map = std::map<zvKeptString, zvKeptString, std::less<>>;

    Map m_map;
    zvMapCursor<Map> m_cursor;
};

#endif
