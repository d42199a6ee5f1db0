#ifndef ZV_YAML_READER_H
#define ZV_YAML_READER_H

#include <functional>

#include "zvYamlNode.h"

/// Reads a YAML document as people write data: maps, lists and texts. Anchors, aliases, tags and keys that
/// stand twice in a map are refused, and so is what is nested more deeply than any case.
namespace zvYamlReader {

/// The items of the list at `key` of the outermost map are not kept: `visit` gets them one after the other,
/// so that a long list takes no memory. Throws the zvCaseFault of a document that is refused.
zvYamlNode read(const std::string& document, const zvString& key,
                const std::function<void(const zvYamlNode&)>& visit);

}  // namespace zvYamlReader

#endif
