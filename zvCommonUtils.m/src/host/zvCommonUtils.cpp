#include "zvCommonUtils.h"

#include <cstring>

#include "zvCharString.h"
#include "zvGatewayHome.h"
#include "zvLogSource.h"
#include "zvPlatform.h"
#include "zvProperties.h"

namespace {

constexpr zvLogSource logger("zvCommonUtils.m/src/zvCommonUtils");

constexpr std::size_t longestLibraryName = 1023;

}  // namespace

zvCommonUtils::zvCommonUtils() = default;
zvCommonUtils::~zvCommonUtils() = default;

bool zvCommonUtils::setGatewayHomeEnvVariable(const zvString& name) {
    return zvGatewayHome::setEnvVariable(name);
}

zvString zvCommonUtils::getGatewayHomeEnvVariable() { return zvGatewayHome::getEnvVariable(); }

zvString zvCommonUtils::getGatewayHomePath() { return zvGatewayHome::getPath(); }

zvString zvCommonUtils::getConfigurationFile(const zvString& name) {
    const zvString home = getGatewayHomePath();
    return home.empty() ? zvString() : zvGatewayHome::configFile(home, zvCharString(name).data());
}

zvString zvCommonUtils::getEnvironmentalVariable(const zvString& name) {
    return zvGatewayHome::readEnvironment(name);
}

zvString zvCommonUtils::getLocalServerUrl() {
    const zvString home = getGatewayHomePath();
    if (home.empty()) {
        return {};
    }
    zvProperties properties;
    if (properties.parse(zvGatewayHome::configFile(home, "client-config.ini")) != zvResult(0)) {
        logger.error("Failed to read in the \"client-config.ini\" file");
        return {};
    }
    zvString url = properties.getPropertyValue("local-server-url");
    if (url.empty()) {
        logger.error("\"local-server-url\" cannot be found in the file \"client-config.ini\"");
    }
    return url;
}

void* zvCommonUtils::getFunctionPtr(const char* library, const char* function) {
    logger.debug("Inside function zvCommonUtils::getFunctionPtr");
    void* address = nullptr;
    if (library != nullptr && function != nullptr && std::strlen(library) <= longestLibraryName) {
        address = zvPlatform::findFunction(zvPlatform::loadLibrary(library), function);
    }
    logger.debug("Exiting function zvCommonUtils::getFunctionPtr");
    return address;
}

zvString zvCommonUtils::getCurrentTime() { return zvPlatform::timeText(zvPlatform::currentTime()).c_str(); }

void zvCommonUtils::sleep(unsigned long milliseconds) { zvPlatform::sleep(milliseconds); }

void zvCommonUtils::adoptUserLocale() { zvPlatform::adoptUserLocale(); }

void zvCommonUtils::adoptUtf8() { zvPlatform::adoptUtf8(); }

bool zvCommonUtils::validBooleanValue(const zvString& text) {
    return text.size() == 4 ? text.equalsIgnoreCase("true")
                            : text.size() == 5 && text.equalsIgnoreCase("false");
}
