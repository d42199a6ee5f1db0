#include "zvMappedTypes.h"

#include <utility>

namespace {

int dataTypeOf(const std::u16string& word) {
    static const std::map<std::u16string, int> types = {
        {u"Integer", 1}, {u"Float", 2}, {u"String", 3}, {u"Date", 4}, {u"Boolean", 5}};
    const auto found = types.find(word);
    return found == types.end() ? 0 : found->second;
}

}  // namespace

void zvMappedAttribute::set(std::u16string name, std::u16string value) {
    if (name == u"LocalName") {
        localName = std::move(value);
    } else if (name == u"RemoteName") {
        remoteName = std::move(value);
    } else if (name == u"Key") {
        key = std::move(value);
    } else if (name == u"DefaultValue") {
        defaultValue = std::move(value);
    } else if (name == u"DataType") {
        dataType = dataTypeOf(value);
    } else {
        optional.emplace(std::move(name), std::move(value));
    }
}

void zvMappedObject::set(const std::u16string& name, std::u16string value) {
    if (name == u"OOTBType") {
        ootbType = std::move(value);
    } else if (name == u"LocalCustType") {
        localType = std::move(value);
    } else if (name == u"RemoteCustType") {
        remoteType = std::move(value);
    }
}

void zvMappedObject::add(std::unique_ptr<zvMappedAttribute> attribute) {
    zvMappedAttribute* const added = attribute.get();
    attributes.push_back(std::move(attribute));
    if (!added->localName.empty()) {
        byLocalName.emplace(added->localName, added);
    }
    if (!added->remoteName.empty()) {
        byRemoteName.emplace(added->remoteName, added);
    }
    if (added->key.empty()) {
        withoutKey.push_back(added);
    } else {
        byKey.emplace(added->key, added);
    }
    if (!added->defaultValue.empty()) {
        withDefault.push_back(added);
    }
}

void zvMappedTypes::add(std::unique_ptr<zvMappedObject> object) {
    zvMappedObject* const added = object.get();
    objects.push_back(std::move(object));
    byOotbType[added->ootbType].push_back(added);
    byLocalType[added->localType].push_back(added);
    byRemoteType[added->remoteType].push_back(added);
    byTypes[added->localType + added->remoteType].push_back(added);
}
