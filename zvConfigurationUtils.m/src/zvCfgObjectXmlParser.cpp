#include "zvCfgObjectXmlParser.h"

#include <memory>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCndParsingUtils.h"
#include "zvDataTypeWords.h"
#include "zvLogSource.h"
#include "zvXMLElement.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgObjectXmlParser");

using View = zvXMLElement::View;

zvString toString(View text) { return {text.data(), static_cast<int>(text.size())}; }

template <class Target>
struct TextField {
    View name;
    void (Target::*set)(zvString);
};

constexpr TextField<zvCfgObject> objectFields[] = {
    {u"OOTBType", &zvCfgObject::setOotbType},
    {u"LocalCustType", &zvCfgObject::setLocalCustomType},
    {u"RemoteCustType", &zvCfgObject::setRemoteCustomType},
};

constexpr TextField<zvCfgAttribute> attributeFields[] = {
    {u"LocalName", &zvCfgAttribute::setLocalName},
    {u"RemoteName", &zvCfgAttribute::setRemoteName},
    {u"Key", &zvCfgAttribute::setKeyName},
    {u"DefaultValue", &zvCfgAttribute::setDefaultValue},
};

// False when no field has the name.
template <class Target, std::size_t count>
bool setField(Target& target, const TextField<Target> (&fields)[count], View name, View value) {
    for (const TextField<Target>& field : fields) {
        if (field.name == name) {
            (target.*field.set)(toString(value));
            return true;
        }
    }
    return false;
}

struct TransferMode {
    View text;
    zvTransferModeEnum mode;
};

constexpr TransferMode transferModes[] = {
    {u"ASCII", zvTransferModeAscii},
    {u"BINARY", zvTransferModeBinary},
};

// Null for a text that is none of the modes.
const zvTransferModeEnum* findTransferMode(View text) {
    for (const TransferMode& candidate : transferModes) {
        if (candidate.text == text) {
            return &candidate.mode;
        }
    }
    return nullptr;
}

std::unique_ptr<zvCfgAttribute> parseAttribute(const zvXMLElement& element) {
    auto attribute = std::make_unique<zvCfgAttribute>();
    attribute->setDataType(zvDataTypeString);
    element.forEachAttribute([&](View name, View value) {
        if (name == u"DataType") {
            attribute->setDataType(zvDataTypeWords::typeOf(value));
        } else if (!setField(*attribute, attributeFields, name, value) &&
                   !attribute->addOptionalAttribute(toString(name), toString(value))) {
            logger.error("Error occured while adding optional attribute : ", toString(name));
        }
    });
    return attribute;
}

void addAttribute(const zvXMLElement& element, zvCfgObject& object) {
    zvCfgAttribute* const attribute = parseAttribute(element).release();
    if (!object.addAttribute(attribute)) {
        logger.error("Attribute ", attribute->localName(),
                     " of Object with LocalCustType : ", object.getLocalCustomType(), " cannot be added");
    }
}

void setMappingRule(const zvXMLElement& element, zvCfgObject& object) {
    const zvString rule = element.text();
    zvString trimmed = rule;
    trimmed.trim();
    if (!trimmed.empty()) {
        object.setMappingRule(zvCndParsingUtils::createConditionStructure(rule));
    }
}

void addFileExtension(const zvXMLElement& element, zvCfgFile& file) {
    auto extension = std::make_unique<zvCfgFileExtension>();
    const zvTransferModeEnum* mode = nullptr;
    bool hasAttributes = false;
    bool hasName = false;
    element.forEachAttribute([&](View name, View value) {
        hasAttributes = true;
        if (name == u"Name") {
            hasName = true;
            extension->setName(toString(value));
        } else if (name == u"Import") {
            extension->setImportAllowed(value == u"True");
        } else if (name == u"Export") {
            extension->setExportAllowed(value == u"True");
        } else if (name == u"TransferMode") {
            mode = findTransferMode(value);
        }
    });
    if (!hasAttributes) {
        logger.error("Error occured while parsing attributes of \"", toString(element.name()));
    }
    if (mode == nullptr) {
        logger.warn("Attribute \"TransferMode\" not provided with the Extn");
    } else {
        extension->setTransferMode(*mode);
    }
    if (!hasName) {
        logger.error("FileExtn Name not found for FileObject with LocalCustType : ",
                     file.getLocalCustomType());
        return;
    }
    const zvString name = extension->getName();
    if (!file.addFileExtension(extension.release())) {
        logger.error("Error occured while adding file extension : ", name,
                     " of FileObject with LocalCustType ", file.getLocalCustomType());
    }
}

void parseFileExtensions(const zvXMLElement& element, zvCfgFile& file) {
    logger.debug("Inside function zvCfgObjectXmlParser::parseFileExtensions");
    bool any = false;
    for (const zvXMLElement child : element.children(u"Extn")) {
        any = true;
        addFileExtension(child, file);
    }
    if (!any) {
        logger.error("Error occured while parsing FileExtension of file Object with LocalCustType : ",
                     file.getLocalCustomType());
        logger.error("Error occured while parsing Allowed File Extensions");
    }
}

// Reads what files have in common with other objects: the attributes first, then the rules, as the log tells.
void parseObject(const zvXMLElement& element, zvCfgObject& object) {
    element.forEachAttribute(
        [&](View name, View value) { static_cast<void>(setField(object, objectFields, name, value)); });
    std::vector<zvXMLElement> rules;
    for (const zvXMLElement child : element.children()) {
        if (child.name() == u"Attribute") {
            addAttribute(child, object);
        } else if (child.name() == u"MappingRule") {
            rules.push_back(child);
        }
    }
    for (const zvXMLElement& rule : rules) {
        setMappingRule(rule, object);
    }
}

void addObject(const zvXMLElement& element) {
    auto object = std::make_unique<zvCfgObject>();
    parseObject(element, *object);
    if (!zvCfgConfigManager::getCfgConfigManager()->addObject(object.release())) {
        logger.error("Error occured while parsing Object in Config file");
    }
}

void addFile(const zvXMLElement& element) {
    logger.debug("Inside function zvCfgObjectXmlParser::parseFileObject");
    auto file = std::make_unique<zvCfgFile>();
    parseObject(element, *file);
    for (const zvXMLElement extensions : element.children(u"AllowedExtns")) {
        parseFileExtensions(extensions, *file);
    }
    if (!zvCfgConfigManager::getCfgConfigManager()->addFile(file.release())) {
        logger.error("Error occured while parsing FileObject in Config file");
    }
}

}  // namespace

zvCfgObjectXmlParser::zvCfgObjectXmlParser() = default;

zvCfgObjectXmlParser::zvCfgObjectXmlParser(const zvCfgObjectXmlParser& other) = default;

zvCfgObjectXmlParser::~zvCfgObjectXmlParser() = default;

zvCfgObjectXmlParser& zvCfgObjectXmlParser::operator=(const zvCfgObjectXmlParser&) = default;

zvResult zvCfgObjectXmlParser::parseObjectConfig(zvXMLParser& parser) const {
    logger.debug("Inside function zvCfgObjectXmlParser::parseObjectConfig");
    const xercesc::DOMElement* const section = zvXMLWalk::asElement(parser.getCurrentNode());
    if (section == nullptr) {
        logger.error("Error occured while parsing : ObjectConfig node!");
        return {};
    }
    bool any = false;
    for (const zvXMLElement child : zvXMLElement(*section).children()) {
        any = true;
        if (child.name() == u"Object") {
            addObject(child);
        } else if (child.name() == u"FileObject") {
            addFile(child);
        }
    }
    if (!any) {
        logger.error("Neither : Object nor FileObject found inside the ObjectConfig node!");
    }
    return 0;
}
