#include "zvCfgOptionalAttributes.h"

zvCfgOptionalAttributes::zvCfgOptionalAttributes() = default;

zvCfgOptionalAttributes::zvCfgOptionalAttributes(const zvCfgOptionalAttributes& other) = default;

zvCfgOptionalAttributes::~zvCfgOptionalAttributes() = default;

zvCfgOptionalAttributes& zvCfgOptionalAttributes::operator=(const zvCfgOptionalAttributes& other) = default;

bool zvCfgOptionalAttributes::addOptionalAttribute(const zvString& name, const zvString& value) {
    return m_attributes.add(name, value);
}

zvString zvCfgOptionalAttributes::getOptionalAttribute(const zvString& name) const {
    return m_attributes.getValue(name);
}
