#ifndef ZV_CFG_OPTIONAL_ATTRIBUTES_H
#define ZV_CFG_OPTIONAL_ATTRIBUTES_H

#include "zvStringToStringMap.h"

/// The attributes of a configuration element that the parser does not know, as name-value pairs.
class ZV_EXPORT zvCfgOptionalAttributes {
public:
    zvCfgOptionalAttributes();
    zvCfgOptionalAttributes(const zvCfgOptionalAttributes& other);
    virtual ~zvCfgOptionalAttributes();

    zvCfgOptionalAttributes& operator=(const zvCfgOptionalAttributes& other);

    /// False, with nothing changed, if the name exists already.
    bool addOptionalAttribute(const zvString& name, const zvString& value);
    /// The value of `name`; empty also for a missing name.
    zvString getOptionalAttribute(const zvString& name) const;
    /// All pairs, ordered by name.
    const zvStringToStringMap& optionalAttributes() const { return m_attributes; }

private:
    zvStringToStringMap m_attributes;
};

#endif
