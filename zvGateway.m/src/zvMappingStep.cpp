#include "zvMappingStep.h"

#include <string>

#include "zvAccessFault.h"
#include "zvCfgAttribute.h"
#include "zvCfgLcmState.h"
#include "zvCfgMgrXmlParser.h"
#include "zvCfgTransition.h"
#include "zvCfgTransitionPath.h"
#include "zvCfgTransitionPathList.h"
#include "zvCommonUtils.h"
#include "zvConsole.h"
#include "zvDataTypeWords.h"
#include "zvDocumentWatch.h"
#include "zvException.h"
#include "zvGatewayHome.h"
#include "zvSecrets.h"
#include "zvStepFailure.h"
#include "zvSurrogate.h"
#include "zvXMLParser.h"

namespace {

constexpr char attributePrefix[] = "attr.";
constexpr char configurationStep[] = "configuration";
constexpr char mappingStep[] = "mapping";

zvStepFailure mappingFailure(const std::string& subject, const std::string& reason) {
    return {zvExitCode::mapping, mappingStep, subject, reason};
}

// What XML 1.0 has no way to write.
bool isXmlText(const zvString& text) {
    for (int i = 0; i < text.size(); ++i) {
        const wchar16 unit = text[i];
        // The terminator stands behind the last unit.
        if (zvSurrogate::isHigh(unit) && zvSurrogate::isLow(text[i + 1])) {
            ++i;
        } else if ((unit < 0x20 && unit != '\t' && unit != '\n' && unit != '\r') ||
                   zvSurrogate::isAny(unit) || unit >= 0xFFFE) {
            return false;
        }
    }
    return true;
}

std::string typesOf(const zvCfgObject& object) {
    return zvConsole::printable(object.getLocalCustomType()) + " -> " +
           zvConsole::printable(object.getRemoteCustomType());
}

std::string namesOf(const zvCfgLcmState& state) {
    return zvConsole::printable(state.localName()) + " (" + zvConsole::printable(state.remoteName()) + ")";
}

}  // namespace

zvMappingStep::zvMappingStep(const zvRoadEvent& event)
    : m_event(event),
      m_strLocalType(event.argument("LocalType")),
      m_strRemoteType(event.argument("RemoteType")) {}

std::string zvMappingStep::reasonToLeaveOut() const {
    return m_strLocalType.empty() && m_strRemoteType.empty()  ? "the event has no object"
           : m_event.progress->hasArrived(m_event.dataFile()) ? "the data file arrived before"
                                                              : "";
}

zvStepOutcome zvMappingStep::readConfiguration() const {
    const std::string reason = reasonToLeaveOut();
    if (!reason.empty()) {
        return zvStepOutcome::leftOut(reason);
    }
    zvConsole::step(configurationStep);
    zvString file = m_event.argument("ConfigFile");
    if (file.empty()) {
        file = zvGatewayHome::configFile(zvCommonUtils::getGatewayHomePath(), "customization-config.xml");
    }
    const auto failure = [&file](const std::string& reason) {
        return zvStepFailure{zvExitCode::configuration, configurationStep, zvConsole::printablePath(file),
                             reason};
    };
    const std::string fault = zvAccessFault(file, zvPlatform::readable);
    if (!fault.empty()) {
        throw failure(fault);
    }
    const zvDocumentWatch watch;
    zvCfgMgrXmlParser parser;
    const zvResult parsed = parser.parse(file, true);
    if (!parsed.isOk()) {
        throw failure(zvConsole::printable(parsed.getMessage()));
    }
    if (!watch.complaint().empty()) {
        throw failure(watch.complaint());
    }
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    zvConsole::fact("file", zvConsole::printablePath(file));
    zvConsole::fact("objects", std::to_string(configuration.numObjects()));
    return zvStepOutcome::done(zvConsole::counted(configuration.numObjects(), "object"));
}

zvStepOutcome zvMappingStep::mapObject() const {
    const std::string reason = reasonToLeaveOut();
    if (!reason.empty()) {
        return zvStepOutcome::leftOut(reason);
    }
    zvConsole::step(mappingStep);
    const bool isLocal = !m_strLocalType.empty();
    const std::string type = zvConsole::printable(isLocal ? m_strLocalType : m_strRemoteType);
    zvObjectMapping mapping(
        isLocal ? zvObjectMapping::Direction::localToRemote : zvObjectMapping::Direction::remoteToLocal,
        attributeValues());
    try {
        if (!mapping.map(&candidates())) {
            throw mappingFailure(type, "no mapping rule of this type holds for the attributes");
        }
    } catch (const zvException& exception) {
        throw mappingFailure(type, zvConsole::printable(exception.getResult().getMessage()));
    }
    showMapping(mapping);
    writeData(mapping);
    showTransition(mapping.object());
    return zvStepOutcome::done(typesOf(mapping.object()));
}

const zvCfgObjectList& zvMappingStep::candidates() const {
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    const bool isLocal = !m_strLocalType.empty();
    const zvCfgObjectList* const found = isLocal && !m_strRemoteType.empty()
                                             ? configuration.getObjects(m_strLocalType, m_strRemoteType)
                                         : isLocal ? configuration.getObjectsByLocalType(m_strLocalType)
                                                   : configuration.getObjectsByRemoteType(m_strRemoteType);
    if (found == nullptr) {
        throw mappingFailure(zvConsole::printable(isLocal ? m_strLocalType : m_strRemoteType),
                             "the configuration has no object of this type");
    }
    return *found;
}

void zvMappingStep::showMapping(const zvObjectMapping& mapping) const {
    zvConsole::fact("object", typesOf(mapping.object()));
    for (const zvObjectMapping::Attribute& attribute : mapping.attributes()) {
        zvConsole::fact(zvConsole::printable(attribute.to),
                        zvConsole::printable(zvSecrets::maskedValue(attribute.to, attribute.value)) +
                            (attribute.isDefault ? "  (default)" : ""));
    }
    for (const zvString& name : mapping.unmapped()) {
        zvConsole::fact("without a mapping", zvConsole::printable(name));
    }
}

zvObjectMapping::Values zvMappingStep::attributeValues() const {
    const zvString prefix(attributePrefix);
    zvObjectMapping::Values values;
    m_event.arguments->forEach([&](const zvString& key, const zvString& value) {
        if (key.find(prefix, 0, prefix.size() - 1) == 0) {
            values.emplace(key.substr(prefix.size(), key.size() - prefix.size()), value);
        }
    });
    return values;
}

void zvMappingStep::writeData(const zvObjectMapping& mapping) const {
    const zvDocumentWatch watch;
    const zvCfgObject& object = mapping.object();
    zvXMLParser document;
    bool complete = document.createXMLTree("MappedObject") &&
                    document.addAttribute("OOTBType", object.getOotbTypeStr()) &&
                    document.addAttribute("LocalType", object.getLocalCustomType()) &&
                    document.addAttribute("RemoteType", object.getRemoteCustomType());
    for (const zvObjectMapping::Attribute& attribute : mapping.attributes()) {
        if (!isXmlText(attribute.value) || !isXmlText(attribute.to)) {
            throw mappingFailure(zvConsole::printable(attribute.from),
                                 "it has a character that an XML file cannot hold");
        }
        complete =
            complete && document.addStartTag("Attribute") && document.addAttribute("Name", attribute.to) &&
            document.addAttribute("DataType", zvDataTypeWords::wordOf(attribute.type).data()) &&
            (attribute.value.empty() || document.addMemberValue(attribute.value)) && document.addEndTag();
    }
    const zvString file = m_event.dataFile();
    if (!complete || !document.writeTreeToFile(file, "UTF-8")) {
        throw mappingFailure(zvConsole::printablePath(file), watch.error());
    }
    zvConsole::fact("data file", zvConsole::printablePath(file));
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
        throw mappingFailure(zvConsole::printable(from) + " -> " + zvConsole::printable(to),
                             "the object's lifecycle has no such way");
    }
    const zvCfgTransitionPath& path = *paths.get(0);
    zvConsole::fact("from state", namesOf(*path.getStateAt(0)));
    for (int i = 0; i < path.size(); ++i) {
        zvConsole::fact(
            zvConsole::printable(zvCfgTransition::typeName(path.getTransitionAt(i)->getType())) + " to",
            namesOf(*path.getStateAt(i + 1)));
    }
}
