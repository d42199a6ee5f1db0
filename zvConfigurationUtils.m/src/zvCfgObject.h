#ifndef ZV_CFG_OBJECT_H
#define ZV_CFG_OBJECT_H

#include <vector>

#include "zvCfgAttribute.h"
#include "zvCfgNameIndex.h"
#include "zvCfgOwner.h"
#include "zvCndCondition.h"
#include "zvFinding.h"
#include "zvNamePositions.h"

/// A mapped object: a type of the local system, the corresponding type of the remote system, the mapped
/// attributes and the rule for when the mapping applies.
class ZV_EXPORT zvCfgObject : public zvCoreObjectCommon {
public:
    zvCfgObject();
    zvCfgObject(const zvCfgObject&) = delete;
    zvCfgObject& operator=(const zvCfgObject&) = delete;
    ~zvCfgObject() override;

    /// The out-of-the-box type.
    zvString getOotbTypeStr() const { return m_strOotbType; }
    void setOotbType(zvString type) { m_strOotbType.swap(type); }
    zvString getLocalCustomType() const { return m_strLocalCustomType; }
    void setLocalCustomType(zvString type) { m_strLocalCustomType.swap(type); }
    zvString getRemoteCustomType() const { return m_strRemoteCustomType; }
    void setRemoteCustomType(zvString type) { m_strRemoteCustomType.swap(type); }
    /// The condition under which the mapping applies; null if there is none.
    zvCndCondition getMappingRule() const { return m_mappingRule; }
    /// The same by reference, owned by the object.
    const zvCndCondition& mappingRule() const { return m_mappingRule; }
    void setMappingRule(const zvCndCondition& rule) { m_mappingRule = rule; }
    /// The rule's text in the file that it was read from, blanks included; empty if it was not read from one.
    zvString getMappingRuleText() const { return m_strMappingRuleText; }
    void setMappingRuleText(zvString text) { m_strMappingRuleText.swap(text); }

    /// Where the element begins in the file that it was read from; unknown if it was read without a sink for
    /// findings.
    zvTextPosition getPosition() const { return m_position; }
    void setPosition(zvTextPosition position) { m_position = position; }

    /// Takes ownership of the attribute, even if it is refused, and indexes it by its current names. A name
    /// that is taken is logged and stays that of the other attribute; the other names are indexed
    /// nevertheless.
    /// @return whether the last name tried (local, remote, key) was free; false also for null and for an
    /// attribute without names.
    bool addAttribute(zvCfgAttribute* attribute);

    /// @name The attributes
    /// They are owned by the object; null for an index out of range and for an unknown name.
    /// @{

    /// All attributes in insertion order.
    int numAttributes() const { return m_attributes.size(); }
    const zvCfgAttribute* getAttribute(int i) const;
    /// The attributes with a key, ordered by key. Access by index is linear.
    int numKeyAttributes() const;
    const zvCfgAttribute* getKeyAttribute(int i) const;
    /// The attributes without a key in insertion order.
    int numNonKeyAttributes() const;
    const zvCfgAttribute* getNonKeyAttribute(int i) const;
    /// The attributes with a default value in insertion order.
    int numDefaultAttributes() const;
    const zvCfgAttribute* getDefaultAttribute(int i) const;

    const zvCfgAttribute* getAttributeByKey(const zvString& key) const;
    const zvCfgAttribute* getAttributeByLocalName(const zvString& name) const;
    const zvCfgAttribute* getAttributeByRemoteName(const zvString& name) const;
    /// @}

    /// Objects of one group have the same attributes, by names and data types and in the same order. 0 for an
    /// object that is in no group: it is not in the manager, or was given an attribute since.
    int getAttributeGroup() const { return m_attributeGroup; }
    /// The positions of the attributes by their names in either system, owned by the manager; null for an
    /// object that is alone in its group or in none, and where two attributes share a name.
    const zvNamePositions* attributePositions() const { return m_pAttributePositions; }

private:
    friend class zvCfgObjectConfig;

    zvString m_strOotbType;
    zvString m_strLocalCustomType;
    zvString m_strRemoteCustomType;
    zvCfgNameIndex m_byKey;
    zvCfgNameIndex m_byLocalName;
    zvCfgNameIndex m_byRemoteName;
    std::vector<zvCfgAttribute*> m_nonKeyAttributes;
    std::vector<zvCfgAttribute*> m_defaultAttributes;
    zvCfgOwner<zvCfgAttribute> m_attributes;
    // What is read of every candidate, beside each other in the memory.
    zvCndCondition m_mappingRule;
    const zvNamePositions* m_pAttributePositions = nullptr;
    int m_attributeGroup = 0;
    zvString m_strMappingRuleText;
    zvTextPosition m_position;
};

#endif
