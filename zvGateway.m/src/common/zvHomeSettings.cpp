#include "zvHomeSettings.h"

#include <cstdlib>
#include <iterator>
#include <sstream>

#include "zvCharString.h"
#include "zvClientConfigFile.h"
#include "zvClientConfigKey.h"
#include "zvSecrets.h"

namespace {

zvString valueOf(const char* key) { return zvClientConfigFile::ofHome().value(key).value_or(zvString()); }

}  // namespace

void zvHomeSettings::adoptSecretKeys() {
    std::istringstream names(zvCharString(valueOf("secret-keys")).data());
    for (std::string name; std::getline(names, name, ',');) {
        zvString key = name.c_str();
        key.trim();
        zvSecrets::addKey(key);
    }
}

int zvHomeSettings::shadowMask(std::string& fault) {
    constexpr int allRights = 0777;
    constexpr int othersRights = 077;
    constexpr int octal = 8;
    const zvString value = valueOf("shadow-mode");
    const zvString reason = value.empty() ? value : zvClientConfigKey::find("shadow-mode")->faultOf(value);
    if (!reason.empty()) {
        fault =
            std::string(zvCharString(reason).data()) + ": \"shadow-mode\" of client-config.ini counts as 700";
    }
    if (value == "umask") {
        return -1;
    }
    const bool isSet = !value.empty() && reason.empty();
    const long mode = isSet ? std::strtol(zvCharString(value).data(), nullptr, octal) : 0;
    return isSet ? static_cast<int>(~mode & allRights) : othersRights;
}

std::vector<std::string> zvHomeSettings::javaOptions() {
    std::istringstream words(zvCharString(valueOf("java-options")).data());
    return {std::istream_iterator<std::string>(words), {}};
}

bool zvHomeSettings::wantsJavaArchive() { return valueOf("java-archive") != "off"; }
