#ifndef ZV_CFG_ATTRIBUTE_H
#define ZV_CFG_ATTRIBUTE_H

#include "zvCfgOptionalAttributes.h"
#include "zvCoreObject.h"
#include "zvFinding.h"
#include "zvValue.h"

/// A mapped attribute: its names in both systems, its data type and its default value.
class ZV_EXPORT zvCfgAttribute : public zvCoreObjectCfg, public zvCfgOptionalAttributes {
public:
    /// No names, no default value, data type None.
    zvCfgAttribute();
    zvCfgAttribute(const zvCfgAttribute& other);
    ~zvCfgAttribute() override;

    zvCfgAttribute& operator=(const zvCfgAttribute& other);

    /// The attribute's key in the configuration.
    zvString getKeyName() const { return m_strKeyName; }
    void setKeyName(zvString name) { m_strKeyName.swap(name); }
    zvString getLocalName() const { return m_strLocalName; }
    void setLocalName(zvString name) { m_strLocalName.swap(name); }
    zvString getRemoteName() const { return m_strRemoteName; }
    void setRemoteName(zvString name) { m_strRemoteName.swap(name); }
    zvDataTypeEnum getDataType() const { return m_dataType; }
    void setDataType(zvDataTypeEnum type) { m_dataType = type; }
    /// The value of an attribute that is missing.
    zvString getDefaultValue() const { return m_strDefaultValue; }
    void setDefaultValue(zvString value) { m_strDefaultValue.swap(value); }

    bool isKeyAttribute() const { return !m_strKeyName.empty(); }
    bool isDefaultValueSpecified() const { return !m_strDefaultValue.empty(); }

    /// The names by reference, owned by the attribute.
    const zvString& keyName() const { return m_strKeyName; }
    const zvString& localName() const { return m_strLocalName; }
    const zvString& remoteName() const { return m_strRemoteName; }
    /// The first of the local name, the remote name and the key that is not empty.
    const zvString& anyName() const;

    /// Where the element begins in the file that it was read from; unknown without a sink for
    /// findings.
    zvTextPosition getPosition() const { return m_position; }
    void setPosition(zvTextPosition position) { m_position = position; }

private:
    zvString m_strKeyName;
    zvString m_strLocalName;
    zvString m_strRemoteName;
    zvDataTypeEnum m_dataType = zvDataTypeNone;
    zvString m_strDefaultValue;
    zvTextPosition m_position;
};

#endif
