#include "zvMappingStep.h"

#include <algorithm>
#include <vector>

#include "zvCfgLcmState.h"
#include "zvCfgTransition.h"
#include "zvCfgTransitionPath.h"
#include "zvCfgTransitionPathList.h"
#include "zvConsole.h"
#include "zvException.h"
#include "zvMappedObjectFile.h"
#include "zvNearestName.h"
#include "zvObjectAttribute.h"
#include "zvValueCheck.h"

namespace {

std::string typesOf(const zvCfgObject& object) {
    return zvConsole::printable(object.getLocalCustomType()) + " -> " +
           zvConsole::printable(object.getRemoteCustomType());
}

std::string namesOf(const zvCfgLcmState& state) {
    return zvConsole::printable(state.localName()) + " (" + zvConsole::printable(state.remoteName()) + ")";
}

// What the configuration does not carry across, and the name that may have been meant.
void showUnmapped(const zvObjectMapping& mapping) {
    if (mapping.unmapped().empty()) {
        return;
    }
    std::vector<zvString> known;
    known.reserve(static_cast<std::size_t>(mapping.object().numAttributes()));
    for (int i = 0; i < mapping.object().numAttributes(); ++i) {
        known.push_back(mapping.sourceName(*mapping.object().getAttribute(i)));
    }
    for (const zvString& name : mapping.unmapped()) {
        const bool isKnown = std::find(known.begin(), known.end(), name) != known.end();
        const std::string text = zvConsole::printable(name);
        if (isKnown) {
            zvConsole::fact("without a mapping", text);
        } else {
            zvConsole::fact("warning", "the object has no attribute \"" + text + "\"" +
                                           zvNearestName::suggestion(name, known));
        }
    }
}

void show(const zvObjectMapping& mapping) {
    zvConsole::fact("object", typesOf(mapping.object()));
    for (const zvObjectMapping::Attribute& attribute : mapping.attributes()) {
        const zvString value = zvObjectAttribute::shownValue(attribute.from, attribute.value);
        zvConsole::fact(zvConsole::printable(attribute.to),
                        zvConsole::printable(zvSecrets::maskedValue(attribute.to, value)) +
                            (attribute.isDefault ? "  (default)" : ""));
    }
    showUnmapped(mapping);
}

}  // namespace

zvMappingStep::zvMappingStep(const zvGatewayEvent& event)
    : m_event(event),
      m_strLocalType(event.argument("LocalType")),
      m_strRemoteType(event.argument("RemoteType")) {}

std::string zvMappingStep::reasonToLeaveOut() const {
    return m_strLocalType.empty() && m_strRemoteType.empty() ? "the event has no object"
           : m_event.record->hasArrived(m_event.dataFile())  ? "the data file arrived before"
                                                             : "";
}

zvStepOutcome zvMappingStep::run() const {
    const std::string reason = reasonToLeaveOut();
    if (!reason.empty()) {
        return zvStepOutcome::leftOut(reason);
    }
    const zvObjectMapping mapping = mapObject();
    show(mapping);
    const zvString file = m_event.dataFile();
    zvMappedObjectFile::write(file, mapping);
    zvConsole::fact("data file", zvConsole::printablePath(file));
    showTransition(mapping.object());
    return zvStepOutcome::done(typesOf(mapping.object()));
}

zvObjectMapping zvMappingStep::mapObject() const {
    zvObjectMapping mapping(
        isLocal() ? zvObjectMapping::Direction::localToRemote : zvObjectMapping::Direction::remoteToLocal,
        attributeValues());
    const zvCfgObjectList& found = candidates();
    m_event.record->setObject(describeObject(mapping, *found.get(0)));
    std::string reason;
    try {
        reason = mapping.map(&found) ? "" : "no mapping rule of this type holds for the attributes";
    } catch (const zvException& exception) {
        reason = zvConsole::printable(exception.getResult().getMessage());
    }
    // First: a value that is not what was meant may be why no rule holds.
    checkValues(mapping);
    if (!reason.empty()) {
        throw zvStepFailure{zvConsole::printable(isLocal() ? m_strLocalType : m_strRemoteType), reason};
    }
    return mapping;
}

// The type and the values of the key attributes, as people speak of an object; objects of one type have the
// same.
std::string zvMappingStep::describeObject(const zvObjectMapping& mapping, const zvCfgObject& object) const {
    std::string text = zvConsole::printable(isLocal() ? m_strLocalType : m_strRemoteType);
    for (int i = 0; i < object.numAttributes(); ++i) {
        const zvCfgAttribute& attribute = *object.getAttribute(i);
        const zvString& name = mapping.sourceName(attribute);
        const zvString* const value = attribute.isKeyAttribute() ? mapping.findValue(name) : nullptr;
        if (value != nullptr && !value->empty()) {
            text.append(" ").append(zvConsole::printable(zvObjectAttribute::shownValue(name, *value)));
        }
    }
    return text;
}

void zvMappingStep::checkValues(const zvObjectMapping& mapping) const {
    const std::vector<std::string> faults = zvValueCheck::faultsOf(mapping);
    if (!faults.empty() && !m_event.session.options.isLenient) {
        throw zvStepFailure{zvConsole::counted(static_cast<std::ptrdiff_t>(faults.size()), "fault"),
                            zvConsole::joined(faults, "; ")};
    }
    for (const std::string& fault : faults) {
        zvConsole::fact("warning", fault);
    }
}

const zvCfgObjectList& zvMappingStep::candidates() const {
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    const zvCfgObjectList* const found = isLocal() && !m_strRemoteType.empty()
                                             ? configuration.getObjects(m_strLocalType, m_strRemoteType)
                                         : isLocal() ? configuration.getObjectsByLocalType(m_strLocalType)
                                                     : configuration.getObjectsByRemoteType(m_strRemoteType);
    if (found == nullptr) {
        throw zvStepFailure{zvConsole::printable(isLocal() ? m_strLocalType : m_strRemoteType),
                            "the configuration has no object of this type"};
    }
    return *found;
}

zvObjectMapping::Values zvMappingStep::attributeValues() const {
    const zvString prefix(zvObjectAttribute::argumentPrefix);
    zvObjectMapping::Values values;
    m_event.arguments->forEach([&](const zvString& key, const zvString& value) {
        if (key.find(prefix, 0, prefix.size() - 1) == 0) {
            values.emplace(key.substr(prefix.size(), key.size() - prefix.size()), value);
        }
    });
    return values;
}

void zvMappingStep::showTransition(const zvCfgObject& object) const {
    const zvString from = m_event.argument("FromState");
    const zvString to = m_event.argument("ToState");
    if (from.empty() && to.empty()) {
        return;
    }
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    zvCfgTransitionPathList paths;
    for (const zvString& type : {object.getLocalCustomType(), object.getOotbTypeStr()}) {
        if (configuration.getTransitionPaths(from, to, type, "", paths)) {
            break;
        }
    }
    if (paths.size() == 0) {
        throw zvStepFailure{zvConsole::printable(from) + " -> " + zvConsole::printable(to),
                            "the object's lifecycle has no such way"};
    }
    const zvCfgTransitionPath& path = *paths.get(0);
    zvConsole::fact("from state", namesOf(*path.getStateAt(0)));
    for (int i = 0; i < path.size(); ++i) {
        zvConsole::fact(
            zvConsole::printable(zvCfgTransition::typeName(path.getTransitionAt(i)->getType())) + " to",
            namesOf(*path.getStateAt(i + 1)));
    }
}
