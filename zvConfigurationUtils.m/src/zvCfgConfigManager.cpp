#include "zvCfgConfigManager.h"

#include "zvCfgFileConfig.h"
#include "zvCfgLifecycleConfig.h"
#include "zvCfgObjectConfig.h"
#include "zvCfgViewConfig.h"

zvCfgConfigManager* zvCfgConfigManager::m_pCfgConfigManager = nullptr;

zvCfgConfigManager::zvCfgConfigManager()
    : m_pObjects(std::make_unique<zvCfgObjectConfig>()),
      m_pFiles(std::make_unique<zvCfgFileConfig>()),
      m_pLifecycles(std::make_unique<zvCfgLifecycleConfig>()),
      m_pViews(std::make_unique<zvCfgViewConfig>()) {}

zvCfgConfigManager::~zvCfgConfigManager() = default;

zvCfgConfigManager* zvCfgConfigManager::getCfgConfigManager() {
    if (m_pCfgConfigManager == nullptr) {
        m_pCfgConfigManager = new zvCfgConfigManager;
    }
    return m_pCfgConfigManager;
}

void zvCfgConfigManager::destroyCfgConfigManager() {
    delete m_pCfgConfigManager;
    m_pCfgConfigManager = nullptr;
}

bool zvCfgConfigManager::addObject(zvCfgObject* object) {
    if (object == nullptr) {
        return false;
    }
    m_pObjects->add(object);
    return true;
}

const zvCfgObjectList* zvCfgConfigManager::getObjectsByOOTBType(const zvString& type) const {
    return m_pObjects->byOotbType(type);
}

const zvCfgObjectList* zvCfgConfigManager::getObjectsByLocalType(const zvString& type) const {
    return m_pObjects->byLocalType(type);
}

const zvCfgObjectList* zvCfgConfigManager::getObjectsByRemoteType(const zvString& type) const {
    return m_pObjects->byRemoteType(type);
}

const zvCfgObjectList* zvCfgConfigManager::getObjects(const zvString& localType,
                                                      const zvString& remoteType) const {
    return m_pObjects->byTypes(localType, remoteType);
}

int zvCfgConfigManager::numObjects() const { return m_pObjects->size(); }

const zvCfgObject* zvCfgConfigManager::getObjectAt(int i) const { return m_pObjects->at(i); }

bool zvCfgConfigManager::addFile(zvCfgFile* file) {
    if (!addObject(file)) {
        return false;
    }
    m_pFiles->add(file);
    return true;
}

const zvCfgFileList* zvCfgConfigManager::getFilesByOOTBType(const zvString& type) const {
    return m_pFiles->byOotbType(type);
}

const zvCfgFileList* zvCfgConfigManager::getFilesByLocalType(const zvString& type) const {
    return m_pFiles->byLocalType(type);
}

const zvCfgFileList* zvCfgConfigManager::getFilesByRemoteType(const zvString& type) const {
    return m_pFiles->byRemoteType(type);
}

int zvCfgConfigManager::numFiles() const { return m_pFiles->files().size(); }

const zvCfgFile* zvCfgConfigManager::getFileAt(int i) const { return m_pFiles->files().getFile(i); }

const zvStringList* zvCfgConfigManager::getImportableFileTypes() const {
    return &m_pFiles->importable().names();
}

const zvStringList* zvCfgConfigManager::getExportableFileTypes() const {
    return &m_pFiles->exportable().names();
}

bool zvCfgConfigManager::isFileAllowedForImport(const zvString& extension) const {
    return m_pFiles->importable().has(extension);
}

bool zvCfgConfigManager::isFileAllowedForExport(const zvString& extension) const {
    return m_pFiles->exportable().has(extension);
}

bool zvCfgConfigManager::addLcmState(zvCfgLcmState* state, const zvString& objectType) {
    return state != nullptr && m_pLifecycles->addState(state, objectType);
}

bool zvCfgConfigManager::addLcmStateByRemoteName(const zvString& objectType, const zvString& localName,
                                                 const zvString& remoteName) {
    zvCfgLcmGraph* const lifecycle = m_pLifecycles->find(objectType);
    return lifecycle != nullptr && lifecycle->addRemoteName(localName, remoteName);
}

const zvCfgLcmState* zvCfgConfigManager::getLcmStateByKey(const zvString& name,
                                                          const zvString& objectType) const {
    const zvCfgLcmGraph* const lifecycle = getLifecycle(objectType);
    return lifecycle == nullptr ? nullptr : lifecycle->getStateByKey(name);
}

const zvCfgLcmState* zvCfgConfigManager::getLcmStateByLocalName(const zvString& name,
                                                                const zvString& objectType) const {
    const zvCfgLcmGraph* const lifecycle = getLifecycle(objectType);
    return lifecycle == nullptr ? nullptr : lifecycle->getStateByLocalName(name);
}

const zvCfgLcmState* zvCfgConfigManager::getLcmStateByRemoteName(const zvString& name,
                                                                 const zvString& objectType) const {
    const zvCfgLcmGraph* const lifecycle = getLifecycle(objectType);
    return lifecycle == nullptr ? nullptr : lifecycle->getStateByRemoteName(name);
}

int zvCfgConfigManager::getLcmStateIndex(const zvString& name, const zvString& objectType) const {
    const zvCfgLcmGraph* const lifecycle = getLifecycle(objectType);
    return lifecycle == nullptr ? -1 : lifecycle->getStateIndex(name);
}

bool zvCfgConfigManager::getTransitionPaths(const zvString& fromState, const zvString& toState,
                                            const zvString& objectType, const zvString& selector,
                                            zvCfgTransitionPathList& paths) const {
    paths.clear();
    const zvCfgLcmGraph* const lifecycle = getLifecycle(objectType);
    return lifecycle != nullptr && lifecycle->getTransitionPaths(fromState, toState, selector, paths);
}

int zvCfgConfigManager::numLifecycles() const { return m_pLifecycles->size(); }

const zvCfgLcmGraph* zvCfgConfigManager::getLifecycleAt(int i) const { return m_pLifecycles->at(i); }

const zvCfgLcmGraph* zvCfgConfigManager::getLifecycle(const zvString& objectType) const {
    return m_pLifecycles->find(objectType);
}

bool zvCfgConfigManager::addView(zvCfgView* view) { return view != nullptr && m_pViews->add(view); }

int zvCfgConfigManager::numViewCollections() const { return m_pViews->numCollections(); }

zvString zvCfgConfigManager::getViewCollectionAt(int i) const { return m_pViews->collectionAt(i); }

const zvCfgViewList* zvCfgConfigManager::getViewsInCollection(const zvString& collection) const {
    return m_pViews->viewsIn(collection);
}

const zvCfgView* zvCfgConfigManager::getDefaultViewInCollection(const zvString& collection) const {
    return m_pViews->defaultViewIn(collection);
}

const zvCfgView* zvCfgConfigManager::getViewByLocalName(const zvString& name) const {
    return m_pViews->byLocalName(name);
}

const zvCfgView* zvCfgConfigManager::getViewByRemoteName(const zvString& name) const {
    return m_pViews->byRemoteName(name);
}
