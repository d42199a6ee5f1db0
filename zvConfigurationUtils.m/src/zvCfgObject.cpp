#include "zvCfgObject.h"

#include "zvLogSource.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgObject");

}  // namespace

zvCfgObject::zvCfgObject() = default;

zvCfgObject::~zvCfgObject() = default;

bool zvCfgObject::addAttribute(zvCfgAttribute* attribute) {
    if (attribute == nullptr) {
        logger.error("NULL pointer passed to function \"zvCfgObject::addAttribute\"");
        return false;
    }
    m_attributes.add(attribute);
    m_attributeGroup = 0;
    m_pAttributePositions = nullptr;
    const zvString& localName = attribute->localName();
    const zvString& remoteName = attribute->remoteName();
    const zvString& key = attribute->keyName();
    if (localName.empty() && remoteName.empty() && key.empty()) {
        logger.warn("The attribute doesn't have any RemoteName or LocalName or Key!");
        return false;
    }
    bool added = false;
    if (!localName.empty()) {
        added = m_byLocalName.add(attribute->sharedLocalName(), attribute);
        if (!added) {
            logger.warn("Attribute with Local Name : ", localName,
                        " cannot be added to the object of local custom type : ", m_strLocalCustomType);
        }
    }
    if (!remoteName.empty()) {
        added = m_byRemoteName.add(attribute->sharedRemoteName(), attribute);
        if (!added) {
            logger.warn("Attribute with Remote name : ", remoteName,
                        " cannot be added to the object with local custom type : ", m_strLocalCustomType);
        }
    }
    if (key.empty()) {
        m_nonKeyAttributes.push_back(attribute);
    } else {
        added = m_byKey.add(attribute->sharedKeyName(), attribute);
        if (!added) {
            logger.warn("Attribute with Key : ", key,
                        " cannot be added to the object of local custom type : ", m_strLocalCustomType);
        }
    }
    if (attribute->isDefaultValueSpecified()) {
        m_defaultAttributes.push_back(attribute);
    }
    return added;
}

const zvCfgAttribute* zvCfgObject::getAttribute(int i) const { return m_attributes.at(i); }

int zvCfgObject::numKeyAttributes() const { return m_byKey.size(); }

const zvCfgAttribute* zvCfgObject::getKeyAttribute(int i) const { return m_byKey.at(i); }

int zvCfgObject::numNonKeyAttributes() const { return static_cast<int>(m_nonKeyAttributes.size()); }

const zvCfgAttribute* zvCfgObject::getNonKeyAttribute(int i) const {
    return zvCfgEntryAt(m_nonKeyAttributes, i);
}

int zvCfgObject::numDefaultAttributes() const { return static_cast<int>(m_defaultAttributes.size()); }

const zvCfgAttribute* zvCfgObject::getDefaultAttribute(int i) const {
    return zvCfgEntryAt(m_defaultAttributes, i);
}

const zvCfgAttribute* zvCfgObject::getAttributeByKey(const zvString& key) const { return m_byKey.find(key); }

const zvCfgAttribute* zvCfgObject::getAttributeByLocalName(const zvString& name) const {
    return m_byLocalName.find(name);
}

const zvCfgAttribute* zvCfgObject::getAttributeByRemoteName(const zvString& name) const {
    return m_byRemoteName.find(name);
}
