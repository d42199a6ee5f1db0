#ifndef ZV_CFG_OPTIONAL_ATTRIBUTES_H
#define ZV_CFG_OPTIONAL_ATTRIBUTES_H

#include "zvStringToStringMap.h"

/// Free names and values: what a configuration element carries beside the attributes that the parser knows.
class ZV_EXPORT zvCfgOptionalAttributes {
public:
    zvCfgOptionalAttributes();
    zvCfgOptionalAttributes(const zvCfgOptionalAttributes& other);
    virtual ~zvCfgOptionalAttributes();

    zvCfgOptionalAttributes& operator=(const zvCfgOptionalAttributes& other);

    /// False, with nothing changed, when the name is there already.
    bool addOptionalAttribute(const zvString& name, const zvString& value);
    /// Empty for an absent name as for an empty value.
    zvString getOptionalAttribute(const zvString& name) const;
    /// All of them, in the order of their names.
    const zvStringToStringMap& optionalAttributes() const { return m_attributes; }

private:
    zvStringToStringMap m_attributes;
};

#endif
