#include "zvStringToAttrMap.h"

#include <functional>
#include <map>

#include "zvKeptString.h"
#include "zvMapIndex.h"

class zvStringToAttrMapImpl {
public:
    std::map<zvKeptString, zvAttribute, std::less<>> attributes;
};

zvStringToAttrMap::zvStringToAttrMap() : m_pImpl(new zvStringToAttrMapImpl) {}

zvStringToAttrMap::zvStringToAttrMap(const zvStringToAttrMap& other)
    : m_pImpl(new zvStringToAttrMapImpl(*other.m_pImpl)) {}

zvStringToAttrMap& zvStringToAttrMap::operator=(const zvStringToAttrMap& other) {
    if (this != &other) {
        zvStringToAttrMapImpl(*other.m_pImpl).attributes.swap(m_pImpl->attributes);
    }
    return *this;
}

zvStringToAttrMap::~zvStringToAttrMap() { delete m_pImpl; }

bool zvStringToAttrMap::addAttr(const zvString& key, const zvAttribute& attribute) {
    return m_pImpl->attributes.emplace(key, attribute).second;
}

void zvStringToAttrMap::updateAttr(const zvString& key, const zvAttribute& attribute) {
    m_pImpl->attributes.insert_or_assign(key, attribute);
}

const zvAttribute* zvStringToAttrMap::findAttr(const zvString& key) const {
    return zvMapFind(m_pImpl->attributes, key);
}

bool zvStringToAttrMap::getAttr(const zvString& key, zvAttribute& out) const {
    const zvAttribute* const attribute = findAttr(key);
    if (attribute != nullptr) {
        out = *attribute;
    }
    return attribute != nullptr;
}

bool zvStringToAttrMap::getAttr(int i, zvAttribute& out) const {
    const auto* const entry = zvMapEntryAt(m_pImpl->attributes, i);
    if (entry != nullptr) {
        out = entry->second;
    }
    return entry != nullptr;
}

bool zvStringToAttrMap::getAttrName(int i, zvString& out) const {
    const auto* const entry = zvMapEntryAt(m_pImpl->attributes, i);
    if (entry != nullptr) {
        out = entry->first;
    }
    return entry != nullptr;
}

int zvStringToAttrMap::size() const { return static_cast<int>(m_pImpl->attributes.size()); }
