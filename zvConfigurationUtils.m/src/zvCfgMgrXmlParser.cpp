#include "zvCfgMgrXmlParser.h"

#include "zvCfgLifecycleXmlParser.h"
#include "zvCfgObjectXmlParser.h"
#include "zvCfgViewXmlParser.h"
#include "zvLogSource.h"

namespace {

constexpr char sourceName[] = "zvConfigurationUtils.m/src/zvCfgMgrXmlParser";
constexpr zvLogSource logger(sourceName);

enum ResultCode { notLoadable = 1, empty = 2, wrongRoot = 3 };

using InvalidRule = zvCfgMgrXmlParser::InvalidRule;

struct Section {
    const char* tag;
    zvResult (*parse)(zvXMLParser& parser, InvalidRule invalidRule);
    int failureCode;
};

constexpr Section sections[] = {
    {"ObjectConfig",
     [](zvXMLParser& parser, InvalidRule invalidRule) {
         return zvCfgObjectXmlParser(invalidRule).parseObjectConfig(parser);
     },
     4},
    {"LifecycleConfig",
     [](zvXMLParser& parser, InvalidRule) { return zvCfgLifecycleXmlParser::parseLifecycleConfig(parser); },
     5},
    {"ViewConfig",
     [](zvXMLParser& parser, InvalidRule) { return zvCfgViewXmlParser::parseViewConfig(parser); }, 6},
};

// Null for an element that is no section.
const Section* findSection(const zvString& tag) {
    for (const Section& section : sections) {
        if (section.tag == tag) {
            return &section;
        }
    }
    return nullptr;
}

zvResult failure(int code, const zvString& message) {
    zvResult result(code);
    result.setMessage(message);
    return result;
}

template <typename... Pieces>
zvResult refuse(int code, zvLogHead head, const Pieces&... rest) {
    const zvString message = zvTextBuilder::concat(head.text, rest...);
    logger.error({"", head.line}, message);
    return failure(code, message);
}

}  // namespace

zvCfgMgrXmlParser::zvCfgMgrXmlParser() : zvCfgMgrXmlParser(nullptr) {}

zvCfgMgrXmlParser::zvCfgMgrXmlParser(zvFindingSink* findings, InvalidRule invalidRule)
    : m_pFindings(findings), m_invalidRule(invalidRule) {}

zvCfgMgrXmlParser::~zvCfgMgrXmlParser() = default;

zvResult zvCfgMgrXmlParser::parse(const zvString& source, bool isFile) {
    logger.debug("Inside function zvCfgMgrXmlParser::parse");
    zvResult result;
    m_strPdmSystemName.reset();
    try {
        result = parseDocument(source, isFile);
    } catch (const zvException& exception) {
        const zvResult thrown = exception.getResult();
        const zvString message = thrown.getMessage().empty() ? exception.getMessage() : thrown.getMessage();
        logger.error("Exception (", thrown.getResult(), " , ", message, ") caught at Line (", __LINE__,
                     "), File(", sourceName, ")");
        result = failure(-1, message);
    } catch (...) {
        result = refuse(-1, "Generic Exception caught at Line (", __LINE__, "), File(", sourceName, ")");
    }
    m_pParser.reset();
    logger.info(result.isOk() ? "Configuration file parsing succeeded"
                              : "Configuration file parsing failed!");
    return result;
}

zvResult zvCfgMgrXmlParser::parseDocument(const zvString& source, bool isFile) {
    zvXMLOptions options = zvXMLOptions::withoutExternalEntities();
    options.onlyTextOf = u"MappingRule";
    m_pParser = std::make_unique<zvXMLParser>(m_pFindings, options);
    if (!m_pParser->loadXMLFromString(source, isFile)) {
        return refuse(notLoadable, "Configuration file : \"", source, "\" not found!");
    }
    zvString tag;
    if (!m_pParser->getRoot(tag) || "CustomizationConfig" != tag) {
        report(zvFindingKind::wrongRoot, "the root element is \"" + tag + "\", not \"CustomizationConfig\"");
        return refuse(wrongRoot, "Wrong Configuration file :", source);
    }
    m_strPdmSystemName = parsePdmSystemName();
    return parseSections(source);
}

zvString zvCfgMgrXmlParser::parsePdmSystemName() {
    zvString name;
    if (m_pParser != nullptr) {
        static_cast<void>(m_pParser->getAttribute("PdmSystemName", name));
    }
    return name;
}

zvResult zvCfgMgrXmlParser::parseSections(const zvString& source) {
    zvString tag;
    if (!m_pParser->getFirstChild(tag)) {
        report(zvFindingKind::emptyDocument, "the configuration has no sections");
        return refuse(empty, "Empty Configuration file :", source);
    }
    do {
        const Section* const section = findSection(tag);
        if (section != nullptr && !section->parse(*m_pParser, m_invalidRule).isOk()) {
            return refuse(section->failureCode, "Error occured while parsing \"", section->tag, "\" node!");
        }
    } while (m_pParser->getNextSibling(tag));
    return 0;
}

// Of the element that the cursor stands on.
void zvCfgMgrXmlParser::report(std::string_view kind, const zvString& text) const {
    if (m_pFindings != nullptr) {
        m_pFindings->report({zvFinding::Severity::error, kind, zvString(), zvString(),
                             m_pParser->getPosition(m_pParser->getCurrentNode()), text});
    }
}
