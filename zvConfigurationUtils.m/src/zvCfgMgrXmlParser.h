#ifndef ZV_CFG_MGR_XML_PARSER_H
#define ZV_CFG_MGR_XML_PARSER_H

#include <memory>

#include "zvCfgObjectXmlParser.h"
#include "zvCoreObject.h"
#include "zvResult.h"
#include "zvXMLParser.h"

/// Reads a configuration file into the configuration manager, once per process and before any lookup. Further
/// parses add to it. A file with an external entity is refused.
class ZV_EXPORT zvCfgMgrXmlParser : public zvCoreObjectCfg {
public:
    using InvalidRule = zvCfgObjectXmlParser::InvalidRule;

    zvCfgMgrXmlParser();
    /// Also reports what is wrong, each fault with its place, to `findings`, which may be null and must
    /// outlive the parser.
    explicit zvCfgMgrXmlParser(zvFindingSink* findings, InvalidRule invalidRule = InvalidRule::endsTheParse);
    zvCfgMgrXmlParser(const zvCfgMgrXmlParser&) = delete;
    zvCfgMgrXmlParser& operator=(const zvCfgMgrXmlParser&) = delete;
    ~zvCfgMgrXmlParser() override;

    /// Reads a file, given by its path, or the XML document in `source`. Never throws.
    ///
    /// @return code 0, or a failure with the message that was logged: 1 for a source that cannot be loaded, 2
    /// for a root without child elements, 3 for a wrong root element, 4, 5 and 6 for a failed section with
    /// objects, lifecycles and views, and -1 for an exception such as that of a mapping rule
    /// that does not parse. A failure ends the parse; the manager keeps what was added before. Smaller errors
    /// are logged, and the affected part is left out.
    zvResult parse(const zvString& source, bool isFile);

    /// The name of the remote system in the last file; empty if it has none.
    zvString getPdmSystemName() const { return m_strPdmSystemName; }

protected:
    /// The "PdmSystemName" of the root element, at the parser's cursor.
    zvString parsePdmSystemName();

private:
    zvResult parseDocument(const zvString& source, bool isFile);
    zvResult parseSections(const zvString& source);

    void report(std::string_view kind, const zvString& text) const;

    zvFindingSink* m_pFindings;
    InvalidRule m_invalidRule;
    std::unique_ptr<zvXMLParser> m_pParser;  // there during parse() only
    zvString m_strPdmSystemName;
};

#endif
