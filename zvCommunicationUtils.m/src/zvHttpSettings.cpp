#include "zvHttpSettings.h"

#include <fstream>
#include <map>
#include <string>

#include "zvClientConfigKey.h"
#include "zvCurlFailure.h"
#include "zvGatewayHome.h"
#include "zvLogSource.h"
#include "zvPath.h"
#include "zvPlatform.h"

namespace {

constexpr zvLogSource logger("zvCommunicationUtils.m/src/zvHttpSettings");

using Values = std::map<std::string, zvString>;

// Not with zvProperties, which logs what it reads: only an invalid value is worth a line. As there, the first
// line with a key counts, and a line that is no property ends the reading.
Values readValues(const zvString& path) {
    Values values;
    std::ifstream file(zvPlatform::pathOf(zvPath::native(path)));
    for (std::string line; std::getline(file, line);) {
        const std::size_t separator = line.find('=');
        const bool isComment = line.empty() || line.front() == '#';
        if (!isComment &&
            (separator == std::string::npos || separator == 0 || separator + 1 == line.size())) {
            break;
        }
        if (!isComment) {
            zvString value = line.substr(separator + 1).c_str();
            value.trim();
            values.emplace(line.substr(0, separator), value);
        }
    }
    return values;
}

// Overwrites `text` if the key is set.
void readText(const Values& values, const char* key, zvString& text) {
    const auto found = values.find(key);
    if (found != values.end()) {
        text = found->second;
    }
}

// Overwrites `number` if the key is set and its value is valid.
void readNumber(const Values& values, const char* key, long& number) {
    const auto found = values.find(key);
    if (found == values.end()) {
        return;
    }
    const zvString fault = zvClientConfigKey::find(key)->faultOf(found->second);
    if (fault.empty()) {
        number = zvString::convertUnicodeToInt(found->second);
    } else {
        logger.warn("", fault, ": \"", key, "\" of the file \"client-config.ini\" stays ",
                    static_cast<int>(number));
    }
}

void applyValues(const Values& values, zvHttpSettings& settings) {
    readNumber(values, "http-connect-timeout", settings.connectSeconds);
    readNumber(values, "http-stall-timeout", settings.stallSeconds);
    readNumber(values, "http-timeout", settings.totalSeconds);
    readNumber(values, "http-answer-limit", settings.answerLimit);
    readText(values, "http-ca-file", settings.caFile);
    readText(values, "http-client-certificate", settings.clientCertificate);
    readText(values, "http-client-key", settings.clientKey);
    // The lines of a properties file are logged elsewhere: a password is in the environment only.
    zvString variable;
    readText(values, "http-client-key-password-env", variable);
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
        applyValues(readValues(zvGatewayHome::configFile(home, "client-config.ini")), settings);
    }
    if (settings.caFile.empty()) {
        readEnvironment(settings);
    }
    return settings;
}
