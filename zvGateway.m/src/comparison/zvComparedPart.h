#ifndef ZV_COMPARED_PART_H
#define ZV_COMPARED_PART_H

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "zvCfgAttribute.h"
#include "zvCndCondition.h"
#include "zvFinding.h"
#include "zvString.h"

/// A part of a configuration, as in an object, an attribute or a state, as far as it is compared.
struct zvComparedPart {
    /// The attributes of a configuration repeat their names and words, which are shared.
    using SharedText = zvCfgAttribute::SharedName;

    struct Property {
        std::string_view name;  // the configuration file's word
        SharedText text;        // null for an empty one

        const zvString& value() const { return zvCfgAttribute::textOf(text); }
        bool operator==(const Property& other) const {
            return name == other.name && value() == other.value();
        }
    };

    /// What a person calls it, as in `attribute "rev"`.
    zvString title() const;
    /// The property with this name; null if there is none.
    const zvString* find(std::string_view name) const;
    /// All properties that have a value, as in `DataType "Float", Key "Mass"`.
    zvString description() const;
    void add(std::string_view name, SharedText text) { properties.push_back({name, std::move(text)}); }
    void add(std::string_view name, zvString value) { add(name, zvCfgAttribute::toShared(std::move(value))); }

    std::string_view kind;
    /// Instead of one made of the kind and the first name.
    zvString ownTitle;
    /// The first properties, as many as this, are names, each of which finds the part.
    std::size_t numNames = 1;
    std::vector<Property> properties;
    std::vector<zvComparedPart> parts;
    /// Unknown where the library keeps none.
    zvTextPosition position;
    /// Of an object: null without a rule.
    zvCndCondition rule;
    zvString ruleText;
};

#endif
