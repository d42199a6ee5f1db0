#include "zvClientConfigCheck.h"

#include <filesystem>
#include <vector>

#include "zvCommonUtils.h"
#include "zvHomeCheckKind.h"
#include "zvHomeFile.h"
#include "zvNativePath.h"
#include "zvNearestName.h"

namespace {

using Form = zvClientConfigKey::Form;

zvString quoted(const zvString& text) { return "\"" + text + "\""; }

std::vector<zvString> knownKeys() {
    std::vector<zvString> names;
    for (const zvClientConfigKey& key : zvClientConfigKey::all()) {
        names.emplace_back(key.name);
    }
    return names;
}

}  // namespace

void zvClientConfigCheck::run() {
    std::string error;
    const std::string content = zvHomeFile::read(m_strFile, error);
    if (!error.empty()) {
        addError(m_strFile, zvHomeCheckKind::unreadable, error.c_str());
        return;
    }
    int number = 0;
    for (const std::string& line : zvHomeFile::lines(content)) {
        checkLine(line, ++number);
    }
    if (m_lines.count("local-server-url") == 0) {
        addError(m_strFile, zvHomeCheckKind::missingKey, "\"local-server-url\" is missing");
    }
}

// No line is shown that has lost its key: it may be a secret.
void zvClientConfigCheck::checkLine(const std::string& line, int number) {
    if (line.empty() || line.front() == '#') {
        return;
    }
    const std::size_t separator = line.find('=');
    const zvTextPosition position{number, 1};
    if (separator == std::string::npos || separator == 0 || separator + 1 == line.size()) {
        addError({m_strFile, position}, zvHomeCheckKind::invalidLine,
                 "it is no name=value, and ends the reading: what follows does not count");
        return;
    }
    const zvString name = line.substr(0, separator).c_str();
    const zvString value = line.substr(separator + 1).c_str();
    if (name.empty() || value.empty()) {
        addError({m_strFile, position}, zvHomeCheckKind::invalidLine,
                 "its bytes are no text in the locale's encoding");
        return;
    }
    checkKey(name, value, position);
}

void zvClientConfigCheck::checkKey(const zvString& name, const zvString& value, zvTextPosition position) {
    const zvCheckPlace place(m_strFile, position);
    const zvClientConfigKey* const key = zvClientConfigKey::find(name);
    if (key == nullptr) {
        addError(place, zvHomeCheckKind::unknownKey,
                 "there is no key " + quoted(name) + zvNearestName::suggestion(name, knownKeys()).c_str());
        return;
    }
    const auto [first, isNew] = m_lines.emplace(name, position.line);
    if (!isNew) {
        addError(place, zvHomeCheckKind::repeatedKey,
                 quoted(name) + " is in line " + zvString(first->second) +
                     " already, which counts; what follows may not be read");
        return;
    }
    checkValue(*key, value, {m_strFile, {position.line, name.size() + 2}});
}

void zvClientConfigCheck::checkValue(const zvClientConfigKey& key, const zvString& value,
                                     const zvCheckPlace& place) {
    zvString trimmed = value;
    trimmed.trim();
    // The address alone is taken as it is.
    const zvString fault = key.faultOf(key.form == Form::url ? value : trimmed);
    const bool isSet =
        key.form != Form::passwordVariable || !zvCommonUtils::getEnvironmentalVariable(trimmed).empty();
    if (!fault.empty()) {
        addError(place, zvHomeCheckKind::invalidValue, quoted(key.name) + ": " + fault);
    } else if (!isSet) {
        // It is not quoted: it may be the password itself.
        addError(place, zvHomeCheckKind::invalidValue,
                 quoted(key.name) + ": there is no environment variable of this name");
    } else if (key.form == Form::certificates || key.form == Form::file) {
        checkFile(key, trimmed, place);
    } else {
        m_strUrl = key.form == Form::url ? value : m_strUrl;
        addGood(place, key);
    }
}

void zvClientConfigCheck::checkFile(const zvClientConfigKey& key, const zvString& value,
                                    const zvCheckPlace& place) {
    std::string error;
    const std::string content = zvHomeFile::read(value, error);
    if (error.empty() && key.form == Form::certificates &&
        content.find("-----BEGIN CERTIFICATE-----") == std::string::npos) {
        error = "it has no certificate in PEM";
    }
    if (!error.empty()) {
        addError(place, zvHomeCheckKind::invalidValue,
                 quoted(key.name) + ": " + quoted(value) + ": " + error.c_str());
    } else if (toNativePath(value).is_relative()) {
        m_report.addFault(place,
                          {zvFinding::Severity::warning, zvHomeCheckKind::relativePath, zvString(),
                           zvString(), place.position,
                           quoted(key.name) + ": " + quoted(value) +
                               " is counted from the folder that the program is started in"},
                          zvExitCode::gatewayHome);
    } else {
        addGood(place, key);
    }
}

void zvClientConfigCheck::addError(const zvCheckPlace& place, std::string_view kind, const zvString& text) {
    m_report.addError(place, kind, text, zvExitCode::gatewayHome);
}

void zvClientConfigCheck::addGood(const zvCheckPlace& place, const zvClientConfigKey& key) {
    m_report.addGood({m_strFile, {place.position.line, 1}}, key.name);
}
