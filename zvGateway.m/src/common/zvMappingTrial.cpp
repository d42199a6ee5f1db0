#include "zvMappingTrial.h"

#include "zvConsole.h"
#include "zvException.h"
#include "zvValueCheck.h"

const zvCfgObjectList* zvIncomingObject::candidates() const {
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    return isLocal() && !remoteType.empty() ? configuration.getObjects(localType, remoteType)
           : isLocal()                      ? configuration.getObjectsByLocalType(localType)
                                            : configuration.getObjectsByRemoteType(remoteType);
}

zvMappingTrial::zvMappingTrial(const zvIncomingObject& object)
    : m_pCandidates(object.candidates()),
      m_mapping(object.isLocal() ? zvObjectMapping::Direction::localToRemote
                                 : zvObjectMapping::Direction::remoteToLocal,
                object.values),
      m_reason(map()),
      m_faults(zvValueCheck::faultsOf(m_mapping)) {}

std::string zvMappingTrial::map() {
    if (m_pCandidates == nullptr) {
        return "the configuration has no object of this type";
    }
    try {
        return m_mapping.map(m_pCandidates) ? "" : "no mapping rule of this type holds for the attributes";
    } catch (const zvException& exception) {
        return zvConsole::printable(exception.getResult().getMessage());
    }
}

std::string zvMappingTrial::faultText() const {
    return zvConsole::counted(static_cast<std::ptrdiff_t>(m_faults.size()), "fault") + ": " +
           zvConsole::joined(m_faults, "; ");
}

// First the values: one that is not what was meant may be why no rule holds.
std::string zvMappingTrial::refusal() const { return m_faults.empty() ? m_reason : faultText(); }
