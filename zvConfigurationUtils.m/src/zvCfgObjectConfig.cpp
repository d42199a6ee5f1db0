#include "zvCfgObjectConfig.h"

void zvCfgObjectConfig::add(zvCfgObject* object) {
    m_objects.add(object);
    const zvString localType = object->getLocalCustomType();
    const zvString remoteType = object->getRemoteCustomType();
    m_byOotbType.at(object->getOotbTypeStr()).add(object);
    m_byLocalType.at(localType).add(object);
    m_byRemoteType.at(remoteType).add(object);
    m_byTypes.at(localType + remoteType).add(object);
}

const zvCfgObjectList* zvCfgObjectConfig::byTypes(const zvString& localType,
                                                  const zvString& remoteType) const {
    return m_byTypes.find(localType + remoteType);
}
