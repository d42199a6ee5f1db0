#ifndef ZV_MAPPED_TYPES_H
#define ZV_MAPPED_TYPES_H

#include <map>
#include <memory>
#include <string>
#include <vector>

/// The model of a hand-written configuration parser, with the same names, types and lookups.
struct zvMappedAttribute {
    /// Stores one XML attribute of the element "Attribute".
    void set(std::u16string name, std::u16string value);

    std::u16string localName;
    std::u16string remoteName;
    std::u16string key;
    std::u16string defaultValue;
    int dataType = 3;
    std::map<std::u16string, std::u16string> optional;
};

struct zvMappedObject {
    void set(const std::u16string& name, std::u16string value);
    void add(std::unique_ptr<zvMappedAttribute> attribute);

    std::u16string ootbType;
    std::u16string localType;
    std::u16string remoteType;
    std::u16string rule;
    std::map<std::u16string, zvMappedAttribute*> byLocalName;
    std::map<std::u16string, zvMappedAttribute*> byRemoteName;
    std::map<std::u16string, zvMappedAttribute*> byKey;
    std::vector<zvMappedAttribute*> withoutKey;
    std::vector<zvMappedAttribute*> withDefault;
    std::vector<std::unique_ptr<zvMappedAttribute>> attributes;
};

struct zvMappedTypes {
    void add(std::unique_ptr<zvMappedObject> object);

    std::vector<std::unique_ptr<zvMappedObject>> objects;
    std::map<std::u16string, std::vector<zvMappedObject*>> byOotbType;
    std::map<std::u16string, std::vector<zvMappedObject*>> byLocalType;
    std::map<std::u16string, std::vector<zvMappedObject*>> byRemoteType;
    std::map<std::u16string, std::vector<zvMappedObject*>> byTypes;
};

#endif
