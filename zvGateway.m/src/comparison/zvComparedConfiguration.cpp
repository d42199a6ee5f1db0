#include "zvComparedConfiguration.h"

#include <map>

#include "zvCfgDescription.h"
#include "zvConfigurationNames.h"
#include "zvConfigurationReading.h"
#include "zvDataTypeWords.h"
#include "zvUtf8.h"

namespace {

zvComparedPart namedPart(std::string_view kind, std::string_view property, const zvString& name) {
    zvComparedPart part;
    part.kind = kind;
    part.add(property, name);
    return part;
}

// Indexed by zvDataTypeEnum.
std::vector<zvComparedPart::SharedText> dataTypeWords() {
    std::vector<zvComparedPart::SharedText> words;
    for (const std::u16string_view word : zvDataTypeWords::words) {
        words.push_back(zvCfgAttribute::toShared(word.data()));
    }
    words[zvDataTypeNone] = zvCfgAttribute::toShared("unknown");
    return words;
}

const zvComparedPart::SharedText& wordOf(zvDataTypeEnum type) {
    static const auto words = dataTypeWords();
    return words[static_cast<std::size_t>(type)];
}

zvString wordOf(bool isAllowed) { return isAllowed ? "True" : "False"; }

zvComparedPart extensionPart(const zvCfgFileExtension& extension) {
    zvComparedPart part = namedPart("extension", "Name", extension.getName());
    part.add("Import", wordOf(extension.isImportAllowed()));
    part.add("Export", wordOf(extension.isExportAllowed()));
    part.add("TransferMode", extension.getTransferMode() == zvTransferModeAscii ? "ASCII" : "BINARY");
    part.position = extension.getPosition();
    return part;
}

zvComparedPart transitionPart(const zvCfgTransition& transition) {
    const zvString type = zvConfigurationNames::transition(transition.getType());
    zvComparedPart part = namedPart("transition", "ToState", transition.toState());
    part.add("Type", type);
    part.ownTitle = type + " to \"" + transition.toState() + "\"";
    return part;
}

zvComparedPart statePart(const zvCfgLcmState& state) {
    zvComparedPart part = namedPart("state", "Name", state.localName());
    part.add("Index", zvString(state.getIndex()));
    part.add("Key", state.key());
    part.add("RemoteName", state.remoteName());
    part.position = state.getPosition();
    for (int i = 0; i < state.numOutgoingTransitions(); ++i) {
        part.parts.push_back(transitionPart(*state.getOutgoingTransition(i)));
    }
    return part;
}

zvComparedPart viewPart(const zvCfgView& view) {
    zvComparedPart part = namedPart("view", "LocalName", view.getLocalName());
    part.add("RemoteName", view.getRemoteName());
    part.numNames = 2;
    part.add("Index", zvString(view.getIndex()));
    return part;
}

}  // namespace

zvComparedConfiguration::zvComparedConfiguration(const std::string& file,
                                                 const std::function<void()>& whileRead) {
    zvCfgConfigManager::destroyCfgConfigManager();
    const zvConfigurationReading reading(file, zvConfigurationReading::InvalidRule::endsTheParse);
    reading.requireComplete();
    const zvCfgConfigManager& configuration = *zvCfgConfigManager::getCfgConfigManager();
    m_document.kind = "configuration";
    m_document.ownTitle = "configuration";
    m_document.add("PdmSystemName", reading.pdmSystemName());
    m_objects.reserve(static_cast<std::size_t>(configuration.numObjects()));
    for (int i = 0; i < configuration.numObjects(); ++i) {
        m_objects.push_back(objectPart(*configuration.getObjectAt(i)));
    }
    addCollections(configuration);
    for (int i = 0; i < configuration.numLifecycles(); ++i) {
        addLifecycle(*configuration.getLifecycleAt(i));
    }
    if (whileRead) {
        whileRead();
    }
    zvCfgConfigManager::destroyCfgConfigManager();
}

zvComparedPart zvComparedConfiguration::objectPart(const zvCfgObject& object) {
    zvComparedPart part;
    part.kind = "object";
    part.ownTitle = zvCfgDescription::ofObject(object);
    part.position = object.getPosition();
    part.rule = object.getMappingRule();
    part.ruleText = object.getMappingRuleText();
    part.add("LocalCustType", object.getLocalCustomType());
    part.add("RemoteCustType", object.getRemoteCustomType());
    part.add("OOTBType", object.getOotbTypeStr());
    const auto* const file = dynamic_cast<const zvCfgFile*>(&object);
    part.add("element", file != nullptr ? "FileObject" : "Object");
    part.parts.reserve(static_cast<std::size_t>(object.numAttributes()));
    for (int i = 0; i < object.numAttributes(); ++i) {
        part.parts.push_back(attributePart(*object.getAttribute(i)));
    }
    if (file != nullptr) {
        file->forEachFileExtension(
            [&part](const zvCfgFileExtension& extension) { part.parts.push_back(extensionPart(extension)); });
    }
    return part;
}

zvComparedPart zvComparedConfiguration::attributePart(const zvCfgAttribute& attribute) {
    zvComparedPart part;
    part.kind = "attribute";
    part.position = attribute.getPosition();
    part.properties.reserve(5);
    part.add("LocalName", attribute.sharedLocalName());
    part.add("RemoteName", attribute.sharedRemoteName());
    part.add("Key", attribute.sharedKeyName());
    part.numNames = 3;
    part.add("DataType", wordOf(attribute.getDataType()));
    part.add("DefaultValue", attribute.defaultValue());
    attribute.optionalAttributes().forEach([&](const zvString& name, const zvString& value) {
        part.add(*m_furtherNames.insert(zvUtf8::encode(name)).first, value);
    });
    return part;
}

void zvComparedConfiguration::addCollections(const zvCfgConfigManager& configuration) {
    for (int i = 0; i < configuration.numViewCollections(); ++i) {
        const zvString name = configuration.getViewCollectionAt(i);
        zvComparedPart part = namedPart("view collection", "Name", name);
        const zvCfgViewList& views = *configuration.getViewsInCollection(name);
        part.add("default view", configuration.getDefaultViewInCollection(name)->getLocalName());
        for (int k = 0; k < views.size(); ++k) {
            part.parts.push_back(viewPart(*views.get(k)));
        }
        m_collections.push_back(std::move(part));
    }
}

void zvComparedConfiguration::addLifecycle(const zvCfgLcmGraph& lifecycle) {
    zvComparedPart part = namedPart("lifecycle", "ObjectType", lifecycle.getObjectType());
    std::map<const zvCfgLcmState*, std::size_t> placeOf;
    for (int i = 0; i < lifecycle.numStates(); ++i) {
        const zvCfgLcmState& state = *lifecycle.getStateAt(i);
        placeOf[&state] = part.parts.size();
        part.parts.push_back(statePart(state));
    }
    lifecycle.forEachRemoteName([&](const zvString& name, const zvCfgLcmState& state) {
        if (name != state.remoteName()) {
            part.parts[placeOf[&state]].parts.push_back(namedPart("further remote name", "RemoteName", name));
        }
    });
    m_lifecycles.push_back(std::move(part));
}
