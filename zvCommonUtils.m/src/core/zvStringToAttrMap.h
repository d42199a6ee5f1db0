#ifndef ZV_STRING_TO_ATTR_MAP_H
#define ZV_STRING_TO_ATTR_MAP_H

#include "zvAttribute.h"

class zvStringToAttrMapImpl;

/// An ordered map from text to attribute. Keys are unique and in zvString's order, which the indices follow;
/// reaching entry `i` takes `i` steps.
class ZV_EXPORT zvStringToAttrMap {
public:
    zvStringToAttrMap();
    zvStringToAttrMap(const zvStringToAttrMap& other);
    zvStringToAttrMap& operator=(const zvStringToAttrMap& other);
    virtual ~zvStringToAttrMap();

    /// False, with nothing changed, when the key is there already.
    bool addAttr(const zvString& key, const zvAttribute& attribute);
    /// Adds or replaces.
    void updateAttr(const zvString& key, const zvAttribute& attribute);
    /// @name Copies
    /// Each getter copies what it finds into `out`; false, with `out` untouched, when there is nothing.
    /// @{
    bool getAttr(const zvString& key, zvAttribute& out) const;
    bool getAttr(int i, zvAttribute& out) const;
    bool getAttrName(int i, zvString& out) const;
    /// @}

    /// The attribute itself, owned by the map and valid until its entry changes; null for an absent key.
    const zvAttribute* findAttr(const zvString& key) const;
    int size() const;

private:
    zvStringToAttrMapImpl* m_pImpl;
};

#endif
