#ifndef ZV_VALUE_CHECK_H
#define ZV_VALUE_CHECK_H

#include <string>
#include <vector>

#include "zvObjectMapping.h"

/// Compares the values of an object with the types that the configuration declares. The library itself reads
/// every text as a value of every type: "abc" is the Integer 0.
namespace zvValueCheck {

/// Whether the text means what the library reads it as.
bool isValid(const zvString& text, zvDataTypeEnum type);

/// A printable text for each fault, with the attribute, its type, its line in the configuration and the
/// value, or the mask of a secret one: a value, also a default one, that is not of its type; a key attribute
/// without a value; a value that decided that an earlier object's mapping rule does not hold, and is not of
/// that object's type. For what zvObjectMapping::map() has been called for, whether or not it found an
/// object.
std::vector<std::string> faultsOf(const zvObjectMapping& mapping);

}  // namespace zvValueCheck

#endif
