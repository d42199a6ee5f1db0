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

/// The process-wide store of the mapping configuration. zvCfgMgrXmlParser fills it once; after that nothing
/// changes, so that any number of threads may read.
///
/// The manager owns whatever is handed to it, also what it refuses, and deletes it once, with itself; what
/// its operations return belongs to it and lives as long. An unknown name, type or index gives null, an empty
/// text or -1.
class ZV_EXPORT zvCfgConfigManager : public zvCoreObjectCommon {
public:
    zvCfgConfigManager(const zvCfgConfigManager&) = delete;
    zvCfgConfigManager& operator=(const zvCfgConfigManager&) = delete;

    /// The manager, created empty by the first call, which must not race.
    static zvCfgConfigManager* getCfgConfigManager();
    /// Deletes the manager with everything in it; the next getCfgConfigManager() creates a new one.
    static void destroyCfgConfigManager();

    /// False for null. Objects may share their types: nothing is a duplicate.
    bool addObject(zvCfgObject* object);
    /// In the order of addition; files are among them.
    const zvCfgObjectList* getObjectsByOOTBType(const zvString& type) const;
    const zvCfgObjectList* getObjectsByLocalType(const zvString& type) const;
    const zvCfgObjectList* getObjectsByRemoteType(const zvString& type) const;
    /// Looks the two names up as one, written one behind the other: ("Pa", "rtX") finds ("Part", "X").
    const zvCfgObjectList* getObjects(const zvString& localType, const zvString& remoteType) const;
    int numObjects() const;
    /// All objects, files included, in the order of addition.
    const zvCfgObject* getObjectAt(int i) const;

    /// Adds the file as an object and as a file type. False for null.
    bool addFile(zvCfgFile* file);
    const zvCfgFileList* getFilesByOOTBType(const zvString& type) const;
    const zvCfgFileList* getFilesByLocalType(const zvString& type) const;
    const zvCfgFileList* getFilesByRemoteType(const zvString& type) const;
    int numFiles() const;
    /// All files in the order of addition.
    const zvCfgFile* getFileAt(int i) const;
    /// The allowed extensions, once for each file that allows one.
    const zvStringList* getImportableFileTypes() const;
    const zvStringList* getExportableFileTypes() const;
    /// Whether the extension is among them, ignoring case.
    bool isFileAllowedForImport(const zvString& extension) const;
    bool isFileAllowedForExport(const zvString& extension) const;

    /// Adds the state to the object type's lifecycle, a new one if need be. False for null, and when the
    /// state's index, local name, key or remote name is another one's already, which is logged; it is still
    /// found by the others.
    bool addLcmState(zvCfgLcmState* state, const zvString& objectType);
    /// Finds the state with this local name by `remoteName` as well. False for an object type without a
    /// lifecycle, an empty or unknown name and a remote name that is taken.
    bool addLcmStateByRemoteName(const zvString& objectType, const zvString& localName,
                                 const zvString& remoteName);
    const zvCfgLcmState* getLcmStateByKey(const zvString& name, const zvString& objectType) const;
    const zvCfgLcmState* getLcmStateByLocalName(const zvString& name, const zvString& objectType) const;
    const zvCfgLcmState* getLcmStateByRemoteName(const zvString& name, const zvString& objectType) const;
    /// The index of the state with this local or else remote name.
    int getLcmStateIndex(const zvString& name, const zvString& objectType) const;
    /// Replaces the content of `paths` by the ways from one state to another, see zvCfgLcmGraph. False, with
    /// `paths` empty, when there is none.
    bool getTransitionPaths(const zvString& fromState, const zvString& toState, const zvString& objectType,
                            const zvString& selector, zvCfgTransitionPathList& paths) const;
    int numLifecycles() const;
    /// The object types' lifecycles in the order of addition.
    const zvCfgLcmGraph* getLifecycleAt(int i) const;
    const zvCfgLcmGraph* getLifecycle(const zvString& objectType) const;

    /// Adds the view by its names and to its collection. False for null, and when a name is empty or another
    /// view's already, which is logged; it is still found by the others.
    bool addView(zvCfgView* view);
    int numViewCollections() const;
    /// The names of the collections in the order of addition.
    zvString getViewCollectionAt(int i) const;
    const zvCfgViewList* getViewsInCollection(const zvString& collection) const;
    /// The view with the lowest index; of several such views the first.
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
