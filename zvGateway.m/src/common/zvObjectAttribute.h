#ifndef ZV_OBJECT_ATTRIBUTE_H
#define ZV_OBJECT_ATTRIBUTE_H

#include "zvSecrets.h"

/// The event's arguments that are attributes of its object: "attr." and the attribute's name.
namespace zvObjectAttribute {

constexpr char argumentPrefix[] = "attr.";

/// The attribute's value as it may be shown: the attribute is a secret when its argument is one.
inline zvString shownValue(const zvString& name, const zvString& value) {
    return zvSecrets::maskedValue(zvString(argumentPrefix) + name, value);
}

}  // namespace zvObjectAttribute

#endif
