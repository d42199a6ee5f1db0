#include "zvHttpSettings.h"

#include "zvCurlFailure.h"
#include "zvDirFileUtils.h"
#include "zvGatewayHome.h"
#include "zvLogSource.h"
#include "zvPlatform.h"
#include "zvProperties.h"

namespace {

constexpr zvLogSource logger("zvCommunicationUtils.m/src/zvHttpSettings");

constexpr int longestTimeout = 86400;

zvString readText(const zvProperties& properties, const char* key) {
    zvString text = properties.getPropertyValue(key);
    text.trim();
    return text;
}

// Overwrites `seconds` if the property is set and valid.
void readSeconds(const zvProperties& properties, const char* key, long& seconds) {
    if (properties.getPropertyValue(key).empty()) {
        return;
    }
    const zvString text = readText(properties, key);
    const int number = zvString::convertUnicodeToInt(text);
    if (number >= 1 && number <= longestTimeout && zvString(number) == text) {
        seconds = number;
    } else {
        logger.warn("\"", text, "\" is no number of seconds from 1 to ", longestTimeout, ": \"", key,
                    "\" of the file \"client-config.ini\" stays ", static_cast<int>(seconds));
    }
}

void readProperties(const zvProperties& properties, zvHttpSettings& settings) {
    readSeconds(properties, "http-connect-timeout", settings.connectSeconds);
    readSeconds(properties, "http-stall-timeout", settings.stallSeconds);
    settings.caFile = readText(properties, "http-ca-file");
    settings.clientCertificate = readText(properties, "http-client-certificate");
    settings.clientKey = readText(properties, "http-client-key");
    // The lines of a properties file are logged: a password is in the environment only.
    const zvString variable = readText(properties, "http-client-key-password-env");
    if (!variable.empty()) {
        settings.clientKeyPassword = zvGatewayHome::readEnvironment(variable);
    }
}

// The variables of curl's command line and of OpenSSL, which libcurl itself does not read.
void readEnvironment(zvHttpSettings& settings) {
    settings.caFile = zvGatewayHome::readEnvironment("CURL_CA_BUNDLE");
    if (settings.caFile.empty() && zvCurlFailure::usesOpenSsl()) {
        settings.caFile = zvGatewayHome::readEnvironment("SSL_CERT_FILE");
        settings.caFolder = zvGatewayHome::readEnvironment("SSL_CERT_DIR");
    }
}

}  // namespace

zvHttpSettings zvHttpSettings::read() {
    zvHttpSettings settings;
    const zvString home = zvGatewayHome::readEnvironment(zvGatewayHome::getEnvVariable());
    if (!home.empty()) {
        const zvString path = zvGatewayHome::configFile(home, "client-config.ini");
        zvProperties properties;
        if (zvDirFileUtils::isAccessible(path, zvPlatform::existence) && properties.parse(path).isOk()) {
            readProperties(properties, settings);
        }
    }
    if (settings.caFile.empty()) {
        readEnvironment(settings);
    }
    return settings;
}
