#ifndef ZV_YAML_READER_H
#define ZV_YAML_READER_H

#include "zvYamlNode.h"

/// Reads a YAML document as people write data: maps, lists and texts. Anchors, aliases, tags and keys that
/// stand twice in a map are refused, and so is what is nested more deeply than any case.
namespace zvYamlReader {

/// Throws the zvCaseFault of a document that is refused.
zvYamlNode read(const std::string& document);

}  // namespace zvYamlReader

#endif
