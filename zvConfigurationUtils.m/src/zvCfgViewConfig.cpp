#include "zvCfgViewConfig.h"

#include <algorithm>

#include "zvLogSource.h"
#include "zvMapIndex.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgViewConfig");

}  // namespace

bool zvCfgViewConfig::add(zvCfgView* view) {
    m_views.add(view);
    bool added = true;
    const auto addName = [&](Index& index, const zvString& name, const char* message,
                             int line = __builtin_LINE()) {
        if (name.empty() || !index.try_emplace(name, view).second) {
            logger.error({message, line});
            added = false;
        }
    };
    addName(m_byRemoteName, view->getRemoteName(), "View cannot be added to Remote name based map");
    addName(m_byLocalName, view->getLocalName(), "View cannot be added to Local name based map");
    if (!addToCollection(view)) {
        logger.error("View cannot be added to ViewNetwork");
        added = false;
    }
    return added;
}

bool zvCfgViewConfig::addToCollection(zvCfgView* view) {
    const zvString name = view->getNetworkName();
    if (name.empty()) {
        return false;
    }
    const auto [entry, isNew] = m_collections.try_emplace(name);
    if (isNew) {
        const auto isBefore = [](const zvString* left, const zvString* right) { return *left < *right; };
        m_collectionNames.insert(
            std::lower_bound(m_collectionNames.begin(), m_collectionNames.end(), &entry->first, isBefore),
            &entry->first);
    }
    Collection& collection = entry->second;
    collection.views.add(view);
    if (collection.first == nullptr || view->getIndex() < collection.first->getIndex()) {
        collection.first = view;
    }
    return true;
}

zvString zvCfgViewConfig::collectionAt(int i) const {
    const zvString* const name = zvCfgEntryAt(m_collectionNames, i);
    return name == nullptr ? zvString() : *name;
}

const zvCfgViewList* zvCfgViewConfig::viewsIn(const zvString& collection) const {
    const Collection* const found = zvMapFind(m_collections, collection);
    return found == nullptr ? nullptr : &found->views;
}

const zvCfgView* zvCfgViewConfig::defaultViewIn(const zvString& collection) const {
    const Collection* const found = zvMapFind(m_collections, collection);
    return found == nullptr ? nullptr : found->first;
}

const zvCfgView* zvCfgViewConfig::byLocalName(const zvString& name) const {
    const zvCfgView* const* const found = zvMapFind(m_byLocalName, name);
    return found == nullptr ? nullptr : *found;
}

const zvCfgView* zvCfgViewConfig::byRemoteName(const zvString& name) const {
    const zvCfgView* const* const found = zvMapFind(m_byRemoteName, name);
    return found == nullptr ? nullptr : *found;
}
