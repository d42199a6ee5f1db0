#ifndef ZV_CFG_OBJECT_CONFIG_H
#define ZV_CFG_OBJECT_CONFIG_H

#include <map>
#include <memory>

#include "zvCfgObject.h"
#include "zvCfgObjectList.h"
#include "zvCfgTypeIndex.h"

/// Owns and indexes the mapped objects, files included.
class zvCfgObjectConfig {
public:
    /// Takes ownership of the object, which is not null.
    void add(zvCfgObject* object);

    /// Null for an unknown type.
    const zvCfgObjectList* byOotbType(const zvString& type) const { return m_byOotbType.find(type); }
    const zvCfgObjectList* byLocalType(const zvString& type) const { return m_byLocalType.find(type); }
    const zvCfgObjectList* byRemoteType(const zvString& type) const { return m_byRemoteType.find(type); }
    const zvCfgObjectList* byTypes(const zvString& localType, const zvString& remoteType) const;

    /// In insertion order.
    int size() const { return m_objects.size(); }
    const zvCfgObject* at(int i) const { return m_objects.at(i); }

private:
    void join(zvCfgObject& object, zvCfgObject& member);

    zvCfgTypeIndex<zvCfgObjectList> m_byOotbType;
    zvCfgTypeIndex<zvCfgObjectList> m_byLocalType;
    zvCfgTypeIndex<zvCfgObjectList> m_byRemoteType;
    zvCfgTypeIndex<zvCfgObjectList> m_byTypes;  // key: both names, concatenated
    zvCfgOwner<zvCfgObject> m_objects;
    int m_lastGroup = 0;
    // Of the groups of several objects; null where two attributes share a name.
    std::map<int, std::unique_ptr<zvNamePositions>> m_positions;
};

#endif
