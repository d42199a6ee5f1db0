#include "zvStringList.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "zvKeptString.h"

class zvStringListImpl {
public:
    std::vector<zvKeptString> strings;
};

zvStringList::zvStringList() : m_pImpl(new zvStringListImpl) {}

zvStringList::zvStringList(const zvStringList& other)
    : zvCoreObject(other), m_pImpl(new zvStringListImpl(*other.m_pImpl)) {}

zvStringList& zvStringList::operator=(const zvStringList& other) {
    if (this != &other) {
        zvStringListImpl(*other.m_pImpl).strings.swap(m_pImpl->strings);
    }
    return *this;
}

zvStringList::~zvStringList() { delete m_pImpl; }

void zvStringList::addString(const zvString& text) { m_pImpl->strings.emplace_back(text); }

void zvStringList::addString(zvString&& text) { m_pImpl->strings.emplace_back(std::move(text)); }

int zvStringList::numStrings() const { return static_cast<int>(m_pImpl->strings.size()); }

zvString zvStringList::getString(int i) const {
    const zvString* const text = findString(i);
    return text == nullptr ? zvString() : *text;
}

const zvString* zvStringList::findString(int i) const {
    return i >= 0 && i < numStrings() ? &m_pImpl->strings[static_cast<std::size_t>(i)] : nullptr;
}

int zvStringList::getStringIndex(const zvString& text) const {
    const auto& strings = m_pImpl->strings;
    const auto found = std::find(strings.begin(), strings.end(), text);
    return found == strings.end() ? -1 : static_cast<int>(found - strings.begin());
}

bool zvStringList::empty() const { return m_pImpl->strings.empty(); }

zvString zvStringList::back() const { return empty() ? zvString() : zvString(m_pImpl->strings.back()); }

void zvStringList::pop() {
    if (!empty()) {
        m_pImpl->strings.pop_back();
    }
}

void zvStringList::clear() { m_pImpl->strings.clear(); }
