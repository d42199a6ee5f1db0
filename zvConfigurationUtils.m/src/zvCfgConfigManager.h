#ifndef ZV_CFG_CONFIG_MANAGER_H
#define ZV_CFG_CONFIG_MANAGER_H

#include <memory>

#include "zvCfgFile.h"
#include "zvCfgFileList.h"
#include "zvCfgLcmGraph.h"
#include "zvCfgObject.h"
#include "zvCfgObjectList.h"
#include "zvCfgView.h"
#include "zvCfgViewList.h"
#include "zvStringList.h"

class zvCfgFileConfig;
class zvCfgLifecycleConfig;
class zvCfgObjectConfig;
class zvCfgViewConfig;

/// The mapping configuration, a singleton. zvCfgMgrXmlParser fills it once; after that it is read-only, and
/// thread-safe for any number of readers.
///
/// The manager takes ownership of everything that is added, even if it is refused, and deletes it in its
/// destructor; returned pointers are borrowed and dangle after that. An unknown name or type and an index out
/// of range give null, an empty string or -1.
class ZV_EXPORT zvCfgConfigManager : public zvCoreObjectCommon {
public:
    zvCfgConfigManager(const zvCfgConfigManager&) = delete;
    zvCfgConfigManager& operator=(const zvCfgConfigManager&) = delete;

    /// The manager, created empty by the first call, which is not thread-safe.
    static zvCfgConfigManager* getCfgConfigManager();
    /// Deletes the manager and everything in it; the next getCfgConfigManager() creates a new one.
    static void destroyCfgConfigManager();

    /// Adds an object; false for null. Several objects may have the same types.
    bool addObject(zvCfgObject* object);
    /// The objects with a type, files included, in insertion order.
    const zvCfgObjectList* getObjectsByOOTBType(const zvString& type) const;
    const zvCfgObjectList* getObjectsByLocalType(const zvString& type) const;
    const zvCfgObjectList* getObjectsByRemoteType(const zvString& type) const;
    /// The objects with both types. The lookup key is the concatenation of the names: ("Pa", "rtX") finds
    /// ("Part", "X").
    const zvCfgObjectList* getObjects(const zvString& localType, const zvString& remoteType) const;
    int numObjects() const;
    /// Object `i` of all objects, files included, in insertion order.
    const zvCfgObject* getObjectAt(int i) const;

    /// Adds a file type, which is also an object; false for null.
    bool addFile(zvCfgFile* file);
    const zvCfgFileList* getFilesByOOTBType(const zvString& type) const;
    const zvCfgFileList* getFilesByLocalType(const zvString& type) const;
    const zvCfgFileList* getFilesByRemoteType(const zvString& type) const;
    int numFiles() const;
    /// File `i` of all files in insertion order.
    const zvCfgFile* getFileAt(int i) const;
    /// The allowed extensions, with duplicates if several files allow the same.
    const zvStringList* getImportableFileTypes() const;
    const zvStringList* getExportableFileTypes() const;
    /// Whether the extension is allowed, case-insensitively.
    bool isFileAllowedForImport(const zvString& extension) const;
    bool isFileAllowedForExport(const zvString& extension) const;

    /// Adds a state to the object type's lifecycle, which is created on demand. False for null and, logged,
    /// if the state's index, local name, key or remote name is taken; the others are indexed nevertheless.
    bool addLcmState(zvCfgLcmState* state, const zvString& objectType);
    /// Adds `remoteName` as an alias of the state `localName`. False for an object type without a lifecycle,
    /// an empty or unknown name and a remote name that is taken.
    bool addLcmStateByRemoteName(const zvString& objectType, const zvString& localName,
                                 const zvString& remoteName);
    const zvCfgLcmState* getLcmStateByKey(const zvString& name, const zvString& objectType) const;
    const zvCfgLcmState* getLcmStateByLocalName(const zvString& name, const zvString& objectType) const;
    const zvCfgLcmState* getLcmStateByRemoteName(const zvString& name, const zvString& objectType) const;
    /// The index of the state with this local name, or else with this remote name.
    int getLcmStateIndex(const zvString& name, const zvString& objectType) const;
    /// Replaces the content of `paths` with the paths between two states; see zvCfgLcmGraph. False, with
    /// `paths` empty, if there is none.
    bool getTransitionPaths(const zvString& fromState, const zvString& toState, const zvString& objectType,
                            const zvString& selector, zvCfgTransitionPathList& paths) const;
    int numLifecycles() const;
    /// Lifecycle `i` in insertion order.
    const zvCfgLcmGraph* getLifecycleAt(int i) const;
    const zvCfgLcmGraph* getLifecycle(const zvString& objectType) const;

    /// Adds a view to its collection and indexes it by its names. False for null and, logged, if a name is
    /// empty or taken; the other name is indexed nevertheless.
    bool addView(zvCfgView* view);
    int numViewCollections() const;
    /// The name of collection `i` in insertion order.
    zvString getViewCollectionAt(int i) const;
    const zvCfgViewList* getViewsInCollection(const zvString& collection) const;
    /// The view with the lowest index; the first one of several.
    const zvCfgView* getDefaultViewInCollection(const zvString& collection) const;
    const zvCfgView* getViewByLocalName(const zvString& name) const;
    const zvCfgView* getViewByRemoteName(const zvString& name) const;

private:
    zvCfgConfigManager();
    ~zvCfgConfigManager() override;

    std::unique_ptr<zvCfgObjectConfig> m_pObjects;
    std::unique_ptr<zvCfgFileConfig> m_pFiles;
    std::unique_ptr<zvCfgLifecycleConfig> m_pLifecycles;
    std::unique_ptr<zvCfgViewConfig> m_pViews;

    static zvCfgConfigManager* m_pCfgConfigManager;
};

#endif
