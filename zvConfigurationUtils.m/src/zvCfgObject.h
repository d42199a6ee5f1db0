#ifndef ZV_CFG_OBJECT_H
#define ZV_CFG_OBJECT_H

#include <map>
#include <vector>

#include "zvCfgAttribute.h"
#include "zvCfgOwner.h"
#include "zvCndCondition.h"
#include "zvFinding.h"

/// A mapped object: a type of the local system, the type of the remote system that it corresponds to, the
/// attributes that are carried across, and the rule that says when.
class ZV_EXPORT zvCfgObject : public zvCoreObjectCommon {
public:
    zvCfgObject();
    zvCfgObject(const zvCfgObject&) = delete;
    zvCfgObject& operator=(const zvCfgObject&) = delete;
    ~zvCfgObject() override;

    /// The standard, out-of-the-box type.
    zvString getOotbTypeStr() const { return m_strOotbType; }
    void setOotbType(zvString type) { m_strOotbType.swap(type); }
    zvString getLocalCustomType() const { return m_strLocalCustomType; }
    void setLocalCustomType(zvString type) { m_strLocalCustomType.swap(type); }
    zvString getRemoteCustomType() const { return m_strRemoteCustomType; }
    void setRemoteCustomType(zvString type) { m_strRemoteCustomType.swap(type); }
    /// When the mapping applies; a null handle when there is no rule.
    zvCndCondition getMappingRule() const { return m_mappingRule; }
    void setMappingRule(const zvCndCondition& rule) { m_mappingRule = rule; }

    /// Where the element begins in the file that it was read from; unknown when nobody wanted findings of it.
    zvTextPosition getPosition() const { return m_position; }
    void setPosition(zvTextPosition position) { m_position = position; }

    /// Takes the attribute, also when it refuses it, and indexes it by the names that it has now. A name that
    /// another attribute has already is logged and stays the other's; the attribute is still found by its
    /// further names.
    /// @return whether the last name tried (local, remote, key) was free; false as well for null and for an
    /// attribute without any name.
    bool addAttribute(zvCfgAttribute* attribute);

    /// The attributes below belong to the object. An index out of range and an unknown name give null.
    ///
    /// Every attribute that was added, in the order of addition.
    int numAttributes() const { return m_attributes.size(); }
    const zvCfgAttribute* getAttribute(int i) const;
    /// In the order of the keys; reaching number `i` takes `i` steps.
    int numKeyAttributes() const;
    const zvCfgAttribute* getKeyAttribute(int i) const;
    /// Those without a key, in the order of addition.
    int numNonKeyAttributes() const;
    const zvCfgAttribute* getNonKeyAttribute(int i) const;
    /// Those with a default value, in the order of addition.
    int numDefaultAttributes() const;
    const zvCfgAttribute* getDefaultAttribute(int i) const;

    const zvCfgAttribute* getAttributeByKey(const zvString& key) const;
    const zvCfgAttribute* getAttributeByLocalName(const zvString& name) const;
    const zvCfgAttribute* getAttributeByRemoteName(const zvString& name) const;

private:
    using Index = std::map<zvString, zvCfgAttribute*>;

    zvString m_strOotbType;
    zvString m_strLocalCustomType;
    zvString m_strRemoteCustomType;
    Index m_byKey;
    Index m_byLocalName;
    Index m_byRemoteName;
    std::vector<zvCfgAttribute*> m_nonKeyAttributes;
    std::vector<zvCfgAttribute*> m_defaultAttributes;
    zvCfgOwner<zvCfgAttribute> m_attributes;
    zvCndCondition m_mappingRule;
    zvTextPosition m_position;
};

#endif
