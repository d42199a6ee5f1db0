#ifndef ZV_STRING_LIST_H
#define ZV_STRING_LIST_H

#include "zvCoreObject.h"
#include "zvString.h"

class zvStringListImpl;

/// Strings in the order of their addition, duplicates included.
class ZV_EXPORT zvStringList : public zvCoreObject {
public:
    zvStringList();
    zvStringList(const zvStringList& other);
    zvStringList& operator=(const zvStringList& other);
    ~zvStringList() override;

    void addString(const zvString& text);
    /// Takes the text's buffer and leaves `text` empty.
    void addString(zvString&& text);
    int numStrings() const;
    /// A copy of entry `i`; an empty string for any other index.
    zvString getString(int i) const;
    /// Entry `i` itself, owned by the list and valid until it changes; null for any other index.
    const zvString* findString(int i) const;
    /// The first entry that equals `text`, or -1.
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
