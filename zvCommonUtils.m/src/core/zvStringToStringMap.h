#ifndef ZV_STRING_TO_STRING_MAP_H
#define ZV_STRING_TO_STRING_MAP_H

#include <functional>
#include <map>

#include "zvKeptString.h"

/// An ordered map from text to text. Keys are unique and in zvString's order, which the indices follow;
/// reaching entry `i` takes `i` steps.
class ZV_EXPORT zvStringToStringMap {
public:
    zvStringToStringMap();
    zvStringToStringMap(const zvStringToStringMap& other);
    zvStringToStringMap& operator=(const zvStringToStringMap& other);
    virtual ~zvStringToStringMap();

    /// False, with nothing changed, when the key is there already.
    bool add(const zvString& key, const zvString& value);
    bool add(zvString&& key, zvString&& value);
    /// Adds or replaces.
    void setValue(const zvString& key, const zvString& value);
    /// The value; empty for an absent key as for an empty value.
    zvString getValue(const zvString& key) const;
    /// @name Entry `i` in key order
    /// Its key and its value; empty for any other index.
    /// @{
    zvString getKey(int i) const;
    zvString getValue(int i) const;
    /// @}

    int size() const;
    /// Calls `visit(key, value)` for every entry in key order, in one walk.
    template <typename Visit>
    void forEach(Visit visit) const {
        for (const auto& entry : m_map) {
            visit(entry.first, entry.second);
        }
    }
    void clear();
    /// Replaces the content by a copy of the other's.
    void copy(const zvStringToStringMap& other);

private:
    std::map<zvKeptString, zvKeptString, std::less<>> m_map;
};

#endif
