#include "zvCfgObjectConfig.h"

namespace {

bool areSame(const zvCfgAttribute::SharedName& left, const zvCfgAttribute::SharedName& right) {
    return left == right || (left != nullptr && right != nullptr && *left == *right);
}

bool haveSameAttributes(const zvCfgObject& one, const zvCfgObject& other) {
    const int count = one.numAttributes();
    if (count != other.numAttributes()) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        const zvCfgAttribute& left = *one.getAttribute(i);
        const zvCfgAttribute& right = *other.getAttribute(i);
        if (left.getDataType() != right.getDataType() ||
            !areSame(left.sharedLocalName(), right.sharedLocalName()) ||
            !areSame(left.sharedRemoteName(), right.sharedRemoteName())) {
            return false;
        }
    }
    return true;
}

}  // namespace

void zvCfgObjectConfig::add(zvCfgObject* object) {
    m_objects.add(object);
    const zvString localType = object->getLocalCustomType();
    const zvString remoteType = object->getRemoteCustomType();
    zvCfgObjectList& sameLocalType = m_byLocalType.at(localType);
    zvCfgObjectList& sameRemoteType = m_byRemoteType.at(remoteType);
    object->m_attributeGroup = groupOf(*object, sameLocalType);
    if (object->m_attributeGroup == 0) {
        object->m_attributeGroup = groupOf(*object, sameRemoteType);
    }
    if (object->m_attributeGroup == 0) {
        object->m_attributeGroup = ++m_lastGroup;
    }
    m_byOotbType.at(object->getOotbTypeStr()).add(object);
    sameLocalType.add(object);
    sameRemoteType.add(object);
    m_byTypes.at(localType + remoteType).add(object);
}

// That of the last object of the type, with which it is compared for an event; 0 when they differ.
int zvCfgObjectConfig::groupOf(const zvCfgObject& object, const zvCfgObjectList& sameType) {
    const zvCfgObject* const last = sameType.get(sameType.size() - 1);
    return last != nullptr && haveSameAttributes(*last, object) ? last->getAttributeGroup() : 0;
}

const zvCfgObjectList* zvCfgObjectConfig::byTypes(const zvString& localType,
                                                  const zvString& remoteType) const {
    return m_byTypes.find(localType + remoteType);
}
