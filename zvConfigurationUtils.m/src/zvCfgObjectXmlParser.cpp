#include "zvCfgObjectXmlParser.h"

#include <memory>
#include <unordered_map>
#include <vector>

#include "zvCfgConfigManager.h"
#include "zvCfgFindings.h"
#include "zvCndConditionReader.h"
#include "zvDataTypeWords.h"
#include "zvLogSource.h"
#include "zvXMLElement.h"

namespace {

constexpr zvLogSource logger("zvConfigurationUtils.m/src/zvCfgObjectXmlParser");

using View = zvXMLElement::View;

constexpr char unusedAttribute[] = "an attribute without LocalName, RemoteName and Key is never used";

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

struct NameField {
    View name;
    void (zvCfgAttribute::*set)(zvCfgAttribute::SharedName);
};

constexpr NameField attributeNames[] = {
    {u"LocalName", &zvCfgAttribute::setSharedLocalName},
    {u"RemoteName", &zvCfgAttribute::setSharedRemoteName},
    {u"Key", &zvCfgAttribute::setSharedKeyName},
};

constexpr TextField<zvCfgAttribute> attributeFields[] = {
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

// The names of attributes, each of them once: the objects of a configuration repeat them.
class NamePool {
public:
    /// The view borrows from a document that outlives the pool.
    zvCfgAttribute::SharedName shared(View name) {
        zvCfgAttribute::SharedName& known = m_names[name];
        if (known == nullptr) {
            known = zvCfgAttribute::toShared(toString(name));
        }
        return known;
    }

private:
    std::unordered_map<View, zvCfgAttribute::SharedName> m_names;
};

// Reads the objects of a section. What is wrong is logged in the system's own words, and reported in plain
// ones.
class ObjectReader {
public:
    ObjectReader(const zvXMLParser& parser, zvCfgObjectXmlParser::InvalidRule invalidRule)
        : m_findings(parser), m_invalidRule(invalidRule) {}

    void read(const zvXMLElement& section) const {
        bool any = false;
        for (const zvXMLElement child : section.children()) {
            any = true;
            if (child.name() == u"Object") {
                addObject(child);
            } else if (child.name() == u"FileObject") {
                addFile(child);
            }
        }
        if (!any) {
            logger.error("Neither : Object nor FileObject found inside the ObjectConfig node!");
            m_findings.error(zvFindingKind::emptySection, section, zvString(), zvString(),
                             "ObjectConfig holds neither an Object nor a FileObject");
        }
    }

private:
    void addObject(const zvXMLElement& element) const {
        auto object = std::make_unique<zvCfgObject>();
        if (readRuled(element, *object) &&
            !zvCfgConfigManager::getCfgConfigManager()->addObject(object.release())) {
            logger.error("Error occured while parsing Object in Config file");
        }
    }

    void addFile(const zvXMLElement& element) const {
        logger.debug("Inside function zvCfgObjectXmlParser::parseFileObject");
        auto file = std::make_unique<zvCfgFile>();
        if (!readRuled(element, *file)) {
            return;
        }
        for (const zvXMLElement extensions : element.children(u"AllowedExtns")) {
            readExtensions(extensions, *file);
        }
        if (!zvCfgConfigManager::getCfgConfigManager()->addFile(file.release())) {
            logger.error("Error occured while parsing FileObject in Config file");
        }
    }

    // What files have in common with other objects. False for an object that is left out for its rule.
    bool readRuled(const zvXMLElement& element, zvCfgObject& object) const {
        try {
            readObject(element, object);
            return true;
        } catch (const zvException&) {
            if (m_invalidRule == zvCfgObjectXmlParser::InvalidRule::endsTheParse) {
                throw;
            }
            return false;
        }
    }

    // The attributes first, then the rules, as the log tells.
    void readObject(const zvXMLElement& element, zvCfgObject& object) const {
        element.forEachAttribute(
            [&](View name, View value) { static_cast<void>(setField(object, objectFields, name, value)); });
        object.setPosition(m_findings.positionOf(element));
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

    void addAttribute(const zvXMLElement& element, zvCfgObject& object) const {
        if (element.node()->getAttributes()->getLength() == 0) {
            logger.error("Error occured while parsing attribute of Object with LocalCustType : ",
                         object.getLocalCustomType());
            m_findings.error(zvFindingKind::missingName, element, object, zvString(), unusedAttribute);
            return;
        }
        zvCfgAttribute* const attribute = parseAttribute(element).release();
        attribute->setPosition(m_findings.positionOf(element));
        const zvString taken = m_findings.areWanted() ? namesTaken(*attribute, object) : zvString();
        const bool isAdded = object.addAttribute(attribute);
        if (!isAdded) {
            logger.error("Attribute ", attribute->localName(),
                         " of Object with LocalCustType : ", object.getLocalCustomType(), " cannot be added");
        }
        if (!taken.empty()) {
            m_findings.report(isAdded ? zvFinding::Severity::warning : zvFinding::Severity::error,
                              zvFindingKind::duplicateName, element, object, attribute->anyName(),
                              "an earlier attribute has the same ", taken);
        } else if (!isAdded) {
            m_findings.error(zvFindingKind::missingName, element, object, zvString(), unusedAttribute);
        }
    }

    // Which of the attribute's names another one of the object has.
    static zvString namesTaken(const zvCfgAttribute& attribute, const zvCfgObject& object) {
        std::vector<const char*> words;
        if (object.getAttributeByLocalName(attribute.localName()) != nullptr) {
            words.push_back("LocalName");
        }
        if (object.getAttributeByRemoteName(attribute.remoteName()) != nullptr) {
            words.push_back("RemoteName");
        }
        if (object.getAttributeByKey(attribute.keyName()) != nullptr) {
            words.push_back("Key");
        }
        return zvCfgFindings::listOf(words);
    }

    // False for a name that is none of an attribute's names.
    bool setName(zvCfgAttribute& attribute, View name, View value) const {
        for (const NameField& field : attributeNames) {
            if (field.name == name) {
                (attribute.*field.set)(m_names.shared(value));
                return true;
            }
        }
        return false;
    }

    std::unique_ptr<zvCfgAttribute> parseAttribute(const zvXMLElement& element) const {
        auto attribute = std::make_unique<zvCfgAttribute>();
        attribute->setDataType(zvDataTypeString);
        element.forEachAttribute([&](View name, View value) {
            if (name == u"DataType") {
                attribute->setDataType(zvDataTypeWords::typeOf(value));
            } else if (!setName(*attribute, name, value) &&
                       !setField(*attribute, attributeFields, name, value) &&
                       !attribute->addOptionalAttribute(toString(name), toString(value))) {
                logger.error("Error occured while adding optional attribute : ", toString(name));
            }
        });
        return attribute;
    }

    void setMappingRule(const zvXMLElement& element, zvCfgObject& object) const {
        const zvString rule = element.text();
        zvString trimmed = rule;
        trimmed.trim();
        if (trimmed.empty()) {
            return;
        }
        try {
            const zvCndConditionReader::Reading reading = zvCndConditionReader::read(rule);
            object.setMappingRule(reading.condition);
            object.setMappingRuleText(rule);
            if (reading.end < rule.size()) {
                m_findings.warning(zvFindingKind::ignoredText, element, object, zvString(),
                                   "the mapping rule is complete before its character ", reading.end + 1,
                                   ": what follows is ignored");
            }
        } catch (const zvException& exception) {
            const zvResult result = exception.getResult();
            const int character = zvString::convertUnicodeToInt(result.getAdditionalInformation());
            m_findings.error(zvFindingKind::invalidRule, element, object, zvString(),
                             "the mapping rule does not parse at its character ", character + 1, ": ",
                             result.getMessage());
            throw;
        }
    }

    void readExtensions(const zvXMLElement& element, zvCfgFile& file) const {
        logger.debug("Inside function zvCfgObjectXmlParser::parseFileExtensions");
        bool any = false;
        for (const zvXMLElement child : element.children(u"Extn")) {
            any = true;
            addExtension(child, file);
        }
        if (!any) {
            logger.error("Error occured while parsing FileExtension of file Object with LocalCustType : ",
                         file.getLocalCustomType());
            logger.error("Error occured while parsing Allowed File Extensions");
            m_findings.error(zvFindingKind::emptySection, element, file, zvString(),
                             "AllowedExtns holds no Extn");
        }
    }

    void addExtension(const zvXMLElement& element, zvCfgFile& file) const {
        auto extension = std::make_unique<zvCfgFileExtension>();
        extension->setPosition(m_findings.positionOf(element));
        const bool hasName = readExtension(element, file, *extension);
        const zvString name = extension->getName();
        if (!hasName) {
            logger.error("FileExtn Name not found for FileObject with LocalCustType : ",
                         file.getLocalCustomType());
            m_findings.error(zvFindingKind::missingName, element, file, zvString(),
                             "an extension without a Name is left out");
        } else if (!file.addFileExtension(extension.release())) {
            logger.error("Error occured while adding file extension : ", name,
                         " of FileObject with LocalCustType ", file.getLocalCustomType());
            m_findings.error(name.empty() ? zvFindingKind::missingName : zvFindingKind::duplicateName,
                             element, file, name,
                             name.empty() ? "an extension with an empty Name is left out"
                                          : "the extension is listed before: this one is left out");
        }
    }

    // Whether the extension has a name.
    bool readExtension(const zvXMLElement& element, const zvCfgFile& file,
                       zvCfgFileExtension& extension) const {
        const zvTransferModeEnum* mode = nullptr;
        zvString modeText;
        bool hasAttributes = false;
        bool hasName = false;
        element.forEachAttribute([&](View name, View value) {
            hasAttributes = true;
            if (name == u"Name") {
                hasName = true;
                extension.setName(toString(value));
            } else if (name == u"Import") {
                extension.setImportAllowed(value == u"True");
            } else if (name == u"Export") {
                extension.setExportAllowed(value == u"True");
            } else if (name == u"TransferMode") {
                mode = findTransferMode(value);
                modeText = toString(value);
            }
        });
        if (!hasAttributes) {
            logger.error("Error occured while parsing attributes of \"", toString(element.name()));
        }
        if (mode == nullptr) {
            logger.warn("Attribute \"TransferMode\" not provided with the Extn");
            m_findings.warning(zvFindingKind::unknownTransferMode, element, file, extension.getName(),
                               "TransferMode \"", modeText, "\" is neither ASCII nor BINARY: BINARY is used");
        } else {
            extension.setTransferMode(*mode);
        }
        return hasName;
    }

    zvCfgFindings m_findings;
    zvCfgObjectXmlParser::InvalidRule m_invalidRule;
    mutable NamePool m_names;
};

}  // namespace

zvCfgObjectXmlParser::zvCfgObjectXmlParser() : zvCfgObjectXmlParser(InvalidRule::endsTheParse) {}

zvCfgObjectXmlParser::zvCfgObjectXmlParser(InvalidRule invalidRule) : m_invalidRule(invalidRule) {}

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
    ObjectReader(parser, m_invalidRule).read(zvXMLElement(*section));
    return 0;
}
