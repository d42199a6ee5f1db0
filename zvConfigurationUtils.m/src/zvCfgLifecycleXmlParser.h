#ifndef ZV_CFG_LIFECYCLE_XML_PARSER_H
#define ZV_CFG_LIFECYCLE_XML_PARSER_H

#include "zvResult.h"
#include "zvXMLParser.h"

namespace zvCfgLifecycleXmlParser {

/// Reads the section with the lifecycles, which the cursor of `parser` stands on, into the configuration
/// manager. What is wrong in it is logged and left out; the result is a failure for a lifecycle without an
/// object type.
zvResult parseLifecycleConfig(zvXMLParser& parser);

}  // namespace zvCfgLifecycleXmlParser

#endif
