#include "zvCfgAttribute.h"

zvCfgAttribute::zvCfgAttribute() = default;

zvCfgAttribute::zvCfgAttribute(const zvCfgAttribute& other) = default;

zvCfgAttribute::~zvCfgAttribute() = default;

zvCfgAttribute& zvCfgAttribute::operator=(const zvCfgAttribute& other) = default;

const zvString& zvCfgAttribute::anyName() const {
    return !m_strLocalName.empty()    ? m_strLocalName
           : !m_strRemoteName.empty() ? m_strRemoteName
                                      : m_strKeyName;
}
