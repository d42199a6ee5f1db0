#include "zvStringToAttrMap.h"

#include "zvStringToAttrMapImpl.h"

zvStringToAttrMap::zvStringToAttrMap() : m_pImpl(new zvStringToAttrMapImpl) {}

zvStringToAttrMap::zvStringToAttrMap(const zvStringToAttrMap& other)
    : m_pImpl(new zvStringToAttrMapImpl(*other.m_pImpl)) {}

zvStringToAttrMap& zvStringToAttrMap::operator=(const zvStringToAttrMap& other) {
    if (this != &other) {
        zvStringToAttrMapImpl(*other.m_pImpl).swap(*m_pImpl);
    }
    return *this;
}

zvStringToAttrMap::~zvStringToAttrMap() { delete m_pImpl; }

bool zvStringToAttrMap::addAttr(const zvString& key, const zvAttribute& attribute) {
    const bool isNew = m_pImpl->find(key) == nullptr;
    if (isNew) {
        m_pImpl->add(key, attribute);
    }
    return isNew;
}

void zvStringToAttrMap::updateAttr(const zvString& key, const zvAttribute& attribute) {
    if (zvAttribute* const present = m_pImpl->find(key)) {
        *present = attribute;
    } else {
        m_pImpl->add(key, attribute);
    }
}

const zvAttribute* zvStringToAttrMap::findAttr(const zvString& key) const { return m_pImpl->find(key); }

bool zvStringToAttrMap::getAttr(const zvString& key, zvAttribute& out) const {
    const zvAttribute* const attribute = findAttr(key);
    if (attribute != nullptr) {
        out = *attribute;
    }
    return attribute != nullptr;
}

bool zvStringToAttrMap::getAttr(int i, zvAttribute& out) const {
    const auto* const entry = m_pImpl->entryAt(i);
    if (entry != nullptr) {
        out = entry->second;
    }
    return entry != nullptr;
}

bool zvStringToAttrMap::getAttrName(int i, zvString& out) const {
    const auto* const entry = m_pImpl->entryAt(i);
    if (entry != nullptr) {
        out = entry->first;
    }
    return entry != nullptr;
}

int zvStringToAttrMap::size() const { return m_pImpl->size(); }
