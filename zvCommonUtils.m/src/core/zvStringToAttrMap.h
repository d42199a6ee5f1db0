#ifndef ZV_STRING_TO_ATTR_MAP_H
#define ZV_STRING_TO_ATTR_MAP_H

#include "zvAttribute.h"

class zvStringToAttrMapImpl;

/// An ordered map from string to attribute, with unique keys. Indices follow the order of the keys; access by
/// index walks from where it last was, so that a loop over all indices is linear.
class ZV_EXPORT zvStringToAttrMap {
public:
    zvStringToAttrMap();
    zvStringToAttrMap(const zvStringToAttrMap& other);
    zvStringToAttrMap& operator=(const zvStringToAttrMap& other);
    virtual ~zvStringToAttrMap();

    /// False, with nothing changed, if the key exists already.
    bool addAttr(const zvString& key, const zvAttribute& attribute);
    /// Adds or replaces.
    void updateAttr(const zvString& key, const zvAttribute& attribute);
    /// @name Copies
    /// Each copies what it finds into `out`; false, with `out` unchanged, for a missing key or an index out
    /// of range.
    /// @{
    bool getAttr(const zvString& key, zvAttribute& out) const;
    bool getAttr(int i, zvAttribute& out) const;
    bool getAttrName(int i, zvString& out) const;
    /// @}

    /// The attribute, owned by the map and valid until its entry changes; null for a missing key.
    const zvAttribute* findAttr(const zvString& key) const;
    int size() const;

private:
    friend class zvCndContext;

    zvStringToAttrMapImpl* m_pImpl;
};

#endif
