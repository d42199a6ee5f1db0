#ifndef ZV_STRING_LIST_H
#define ZV_STRING_LIST_H

#include "zvCoreObject.h"
#include "zvString.h"

class zvStringListImpl;

/// A list of strings in insertion order; duplicates are allowed.
class ZV_EXPORT zvStringList : public zvCoreObject {
public:
    zvStringList();
    zvStringList(const zvStringList& other);
    zvStringList& operator=(const zvStringList& other);
    ~zvStringList() override;

    void addString(const zvString& text);
    /// Moves the string into the list; `text` is empty afterwards.
    void addString(zvString&& text);
    int numStrings() const;
    /// A copy of entry `i`; an empty string if `i` is out of range.
    zvString getString(int i) const;
    /// Entry `i`, owned by the list and valid until the list changes; null if `i` is out of range.
    const zvString* findString(int i) const;
    /// The index of the first entry that equals `text`; -1 if there is none.
    int getStringIndex(const zvString& text) const;
    bool empty() const;
    /// A copy of the last entry; an empty string for an empty list.
    zvString back() const;
    /// Removes the last entry, if any.
    void pop();
    void clear();

private:
    zvStringListImpl* m_pImpl;
};

#endif
