#ifndef ZV_YAML_NODE_H
#define ZV_YAML_NODE_H

#include <string>
#include <vector>

#include "zvFinding.h"
#include "zvString.h"

/// A part of a YAML document. Every value is a text: "no", "1.0" and "2027-01-01" stay what is written.
struct zvYamlNode {
    enum class Kind { text, list, map };

    Kind kind = Kind::text;
    zvTextPosition position;
    zvString text;
    /// Whether nothing is written where a value could be.
    bool isMissing = false;
    /// Of a list its items; of a map its keys, which are texts, each followed by its value.
    std::vector<zvYamlNode> items;
};

/// What a file of cases is refused for, at a place of it. The text is printable.
struct zvCaseFault {
    zvTextPosition position;
    std::string text;
};

#endif
