#include "zvCfgAttribute.h"

zvCfgAttribute::zvCfgAttribute() = default;

zvCfgAttribute::zvCfgAttribute(const zvCfgAttribute& other) = default;

zvCfgAttribute::~zvCfgAttribute() = default;

zvCfgAttribute& zvCfgAttribute::operator=(const zvCfgAttribute& other) = default;

const zvString& zvCfgAttribute::anyName() const {
    return m_pLocalName != nullptr ? *m_pLocalName : m_pRemoteName != nullptr ? *m_pRemoteName : keyName();
}

zvCfgAttribute::SharedName zvCfgAttribute::toShared(zvString&& name) {
    return name.empty() ? nullptr : std::make_shared<const zvString>(std::move(name));
}

const zvString& zvCfgAttribute::noName() {
    static const zvString none;
    return none;
}
