#ifndef ZV_CFG_ATTRIBUTE_H
#define ZV_CFG_ATTRIBUTE_H

#include <memory>
#include <utility>

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
    zvString getKeyName() const { return keyName(); }
    void setKeyName(zvString name) { m_pKeyName = toShared(std::move(name)); }
    zvString getLocalName() const { return localName(); }
    void setLocalName(zvString name) { m_pLocalName = toShared(std::move(name)); }
    zvString getRemoteName() const { return remoteName(); }
    void setRemoteName(zvString name) { m_pRemoteName = toShared(std::move(name)); }
    zvDataTypeEnum getDataType() const { return m_dataType; }
    void setDataType(zvDataTypeEnum type) { m_dataType = type; }
    /// The value of an attribute that is missing.
    zvString getDefaultValue() const { return m_strDefaultValue; }
    void setDefaultValue(zvString value) { m_strDefaultValue.swap(value); }

    /// @name Names that attributes share
    /// The objects of a configuration repeat them. Null for an empty name.
    /// @{
    using SharedName = std::shared_ptr<const zvString>;

    const SharedName& sharedKeyName() const { return m_pKeyName; }
    void setSharedKeyName(SharedName name) { m_pKeyName = std::move(name); }
    const SharedName& sharedLocalName() const { return m_pLocalName; }
    void setSharedLocalName(SharedName name) { m_pLocalName = std::move(name); }
    const SharedName& sharedRemoteName() const { return m_pRemoteName; }
    void setSharedRemoteName(SharedName name) { m_pRemoteName = std::move(name); }
    /// A name that is shared with copies of the attribute alone.
    static SharedName toShared(zvString&& name);
    static const zvString& textOf(const SharedName& name) { return name == nullptr ? noName() : *name; }
    /// @}

    bool isKeyAttribute() const { return m_pKeyName != nullptr; }
    bool isDefaultValueSpecified() const { return !m_strDefaultValue.empty(); }

    /// The names and the default value by reference, owned by the attribute.
    const zvString& keyName() const { return textOf(m_pKeyName); }
    const zvString& localName() const { return textOf(m_pLocalName); }
    const zvString& remoteName() const { return textOf(m_pRemoteName); }
    const zvString& defaultValue() const { return m_strDefaultValue; }
    /// The first of the local name, the remote name and the key that is not empty.
    const zvString& anyName() const;

    /// Where the element begins in the file that it was read from; unknown without a sink for
    /// findings.
    zvTextPosition getPosition() const { return m_position; }
    void setPosition(zvTextPosition position) { m_position = position; }

private:
    static const zvString& noName();

    SharedName m_pKeyName;
    SharedName m_pLocalName;
    SharedName m_pRemoteName;
    zvDataTypeEnum m_dataType = zvDataTypeNone;
    zvString m_strDefaultValue;
    zvTextPosition m_position;
};

#endif
