#ifndef ZV_CFG_OBJECT_XML_PARSER_H
#define ZV_CFG_OBJECT_XML_PARSER_H

#include "zvResult.h"
#include "zvXMLParser.h"

/// Reads the section with the mapped objects and file types of a configuration file into the configuration
/// manager.
class ZV_EXPORT zvCfgObjectXmlParser {
public:
    /// What happens when a mapping rule does not parse.
    enum class InvalidRule { endsTheParse, leavesOutItsObject };

    /// An invalid rule ends the parse.
    zvCfgObjectXmlParser();
    explicit zvCfgObjectXmlParser(InvalidRule invalidRule);
    zvCfgObjectXmlParser(const zvCfgObjectXmlParser& other);
    virtual ~zvCfgObjectXmlParser();

    zvCfgObjectXmlParser& operator=(const zvCfgObjectXmlParser& other);

    /// Reads the section that the cursor of `parser` stands on. What is wrong in it is logged, reported to
    /// the parser's sink for findings, and left out; the result is a failure only without an element to read.
    ///
    /// @throws zvException for a mapping rule that does not parse, if it ends the parse; what came before it
    /// is in the manager.
    zvResult parseObjectConfig(zvXMLParser& parser) const;

private:
    InvalidRule m_invalidRule;
};

#endif
