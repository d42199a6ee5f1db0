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

// The last object of the type, with which the next one is compared for an event; null when they differ.
zvCfgObject* lastIfAlike(const zvCfgObjectList& sameType, const zvCfgObject& object) {
    zvCfgObject* const last = sameType.get(sameType.size() - 1);
    return last != nullptr && last->getAttributeGroup() != 0 && haveSameAttributes(*last, object) ? last
                                                                                                  : nullptr;
}

// Null where two attributes share a name.
std::unique_ptr<zvNamePositions> positionsOf(const zvCfgObject& object) {
    auto positions = std::make_unique<zvNamePositions>();
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        for (const auto& name : {attribute.sharedLocalName(), attribute.sharedRemoteName()}) {
            if (name != nullptr && !positions->add(name, i) && positions->find(*name) != i) {
                return nullptr;
            }
        }
    }
    return positions;
}

}  // namespace

void zvCfgObjectConfig::add(zvCfgObject* object) {
    m_objects.add(object);
    const zvString localType = object->getLocalCustomType();
    const zvString remoteType = object->getRemoteCustomType();
    zvCfgObjectList& sameLocalType = m_byLocalType.at(localType);
    zvCfgObjectList& sameRemoteType = m_byRemoteType.at(remoteType);
    zvCfgObject* const sameAsLocal = lastIfAlike(sameLocalType, *object);
    zvCfgObject* const same = sameAsLocal != nullptr ? sameAsLocal : lastIfAlike(sameRemoteType, *object);
    if (same != nullptr) {
        join(*object, *same);
    } else {
        object->m_attributeGroup = ++m_lastGroup;
    }
    m_byOotbType.at(object->getOotbTypeStr()).add(object);
    sameLocalType.add(object);
    sameRemoteType.add(object);
    m_byTypes.at(localType + remoteType).add(object);
}

void zvCfgObjectConfig::join(zvCfgObject& object, zvCfgObject& member) {
    const auto [entry, isNew] = m_positions.try_emplace(member.m_attributeGroup);
    if (isNew) {
        entry->second = positionsOf(object);
        member.m_pAttributePositions = entry->second.get();
    }
    object.m_attributeGroup = member.m_attributeGroup;
    object.m_pAttributePositions = entry->second.get();
}

const zvCfgObjectList* zvCfgObjectConfig::byTypes(const zvString& localType,
                                                  const zvString& remoteType) const {
    return m_byTypes.find(localType + remoteType);
}
