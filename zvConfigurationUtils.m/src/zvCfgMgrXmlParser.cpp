#include "zvCfgMgrXmlParser.h"

#include "zvCfgLifecycleXmlParser.h"
#include "zvCfgObjectXmlParser.h"
#include "zvCfgViewXmlParser.h"
#include "zvLogSource.h"

namespace {

constexpr char sourceName[] = "zvConfigurationUtils.m/src/zvCfgMgrXmlParser";
constexpr zvLogSource logger(sourceName);

enum ResultCode { notLoadable = 1, empty = 2, wrongRoot = 3 };

zvResult parseObjectConfig(zvXMLParser& parser) { return zvCfgObjectXmlParser().parseObjectConfig(parser); }

struct Section {
    const char* tag;
    zvResult (*parse)(zvXMLParser& parser);
    int failureCode;
};

constexpr Section sections[] = {
    {"ObjectConfig", parseObjectConfig, 4},
    {"LifecycleConfig", zvCfgLifecycleXmlParser::parseLifecycleConfig, 5},
    {"ViewConfig", zvCfgViewXmlParser::parseViewConfig, 6},
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

zvCfgMgrXmlParser::zvCfgMgrXmlParser() = default;

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
    m_pParser = std::make_unique<zvXMLParser>();
    if (!m_pParser->loadXMLFromString(source, isFile)) {
        return refuse(notLoadable, "Configuration file : \"", source, "\" not found!");
    }
    zvString tag;
    if (!m_pParser->getRoot(tag) || "CustomizationConfig" != tag) {
        return refuse(wrongRoot, "Wrong Configuration file :", source);
    }
    m_strPdmSystemName = parsePdmSystemName();
    return parseSections(source);
}

zvString zvCfgMgrXmlParser::parsePdmSystemName() {
    zvString name;
    static_cast<void>(m_pParser->getAttribute("PdmSystemName", name));
    return name;
}

zvResult zvCfgMgrXmlParser::parseSections(const zvString& source) {
    zvString tag;
    if (!m_pParser->getFirstChild(tag)) {
        return refuse(empty, "Empty Configuration file :", source);
    }
    do {
        const Section* const section = findSection(tag);
        if (section != nullptr && !section->parse(*m_pParser).isOk()) {
            return refuse(section->failureCode, "Error occured while parsing \"", section->tag, "\" node!");
        }
    } while (m_pParser->getNextSibling(tag));
    return 0;
}
