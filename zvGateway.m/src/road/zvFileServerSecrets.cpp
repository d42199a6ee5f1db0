#include "zvFileServerSecrets.h"

#include "zvHomeFile.h"
#include "zvJavaProperties.h"

namespace {

// The name in a reference; empty for any other value.
zvString nameIn(const zvString& value) {
    const zvString prefix = "${secret:";
    const int size = value.size();
    const bool isReference =
        size > prefix.size() && value.find(prefix, 0, prefix.size() - 1) == 0 && value[size - 1] == u'}';
    return isReference ? value.substr(prefix.size(), size - prefix.size() - 1) : zvString();
}

}  // namespace

std::set<zvString> zvFileServerSecrets::names() {
    std::set<zvString> names;
    const std::string content = zvHomeFile::readConfiguration("fileserver.properties");
    for (const zvJavaProperties::Entry& entry : zvJavaProperties::entriesOf(content)) {
        names.insert(nameIn(entry.value));
    }
    // These belong to the event, also where the file server has the same.
    for (const char* const own : {"", "LoginPassword", "KPDMPasswd"}) {
        names.erase(own);
    }
    return names;
}
