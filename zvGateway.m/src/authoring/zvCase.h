#ifndef ZV_CASE_H
#define ZV_CASE_H

#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "zvAttribute.h"
#include "zvMappingTrial.h"

/// What an attribute has to be in the other system.
struct zvExpectedAttribute {
    zvString value;
    /// Not compared if it is None.
    zvDataTypeEnum type = zvDataTypeNone;
    bool isDefault = false;
};

/// An object comes from one system, and has to become another one or to be refused.
struct zvObjectCase {
    zvIncomingObject object;
    /// A part of the reason of a refusal; without it, the object has to be mapped.
    std::optional<zvString> refused;
    zvString type;
    std::map<zvString, zvExpectedAttribute> attributes;
    /// The names of what the configuration does not carry across, in their order.
    std::vector<zvString> leftOut;
};

/// A condition has to hold or not, or to be refused.
struct zvConditionCase {
    zvString condition;
    std::vector<zvAttribute> attributes;
    std::optional<zvString> refused;
    bool holds = false;
};

/// From one state of a lifecycle a way has to lead to another one.
struct zvLifecycleCase {
    zvString objectType;
    zvString from;
    zvString to;
    /// As in "Promote FROZEN"; without it, there must be no way.
    std::optional<std::vector<zvString>> way;
};

/// Files with an extension may come in and go out with objects of a type, and in which mode.
struct zvFileCase {
    zvString extension;
    zvString objectType;
    bool isImported = false;
    bool isExported = false;
    /// "BINARY" or "ASCII"; not compared if it is empty.
    zvString mode;
};

struct zvCase {
    int line = 0;
    zvString name;
    std::variant<zvObjectCase, zvConditionCase, zvLifecycleCase, zvFileCase> content;
};

#endif
