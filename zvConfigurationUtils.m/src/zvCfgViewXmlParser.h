#ifndef ZV_CFG_VIEW_XML_PARSER_H
#define ZV_CFG_VIEW_XML_PARSER_H

#include "zvResult.h"
#include "zvXMLParser.h"

namespace zvCfgViewXmlParser {

/// Reads the section with the view collections, which the cursor of `parser` stands on, into the
/// configuration manager. What is wrong in it is logged and left out; the result is a failure for a
/// collection without a name.
zvResult parseViewConfig(zvXMLParser& parser);

}  // namespace zvCfgViewXmlParser

#endif
