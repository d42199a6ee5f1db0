#include "zvClientSettings.h"

#include <charconv>
#include <utility>

#include "zvCharString.h"
#include "zvClientConfigKey.h"
#include "zvConsole.h"
#include "zvProgramLog.h"

zvClientSettings::zvClientSettings(zvClientConfigFile file) : m_file(std::move(file)) {}

double zvClientSettings::number(const char* key, double byDefault) {
    const std::optional<zvString> value = m_file.value(key);
    if (!value) {
        return byDefault;
    }
    const zvString fault = zvClientConfigKey::find(key)->faultOf(*value);
    if (!fault.empty()) {
        m_faults.push_back(std::string(zvCharString(fault).data()) + ": \"" + key +
                           "\" of client-config.ini is left at its default");
        return byDefault;
    }
    const std::string digits = zvCharString(*value).data();
    double number = byDefault;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

void zvClientSettings::tellFaults() const {
    for (const std::string& fault : m_faults) {
        zvConsole::fact("warning", fault);
        zvProgramLog::write(zvLogLevel::warn, fault, "zvGateway.m/src/zvClientSettings", __LINE__);
    }
}
