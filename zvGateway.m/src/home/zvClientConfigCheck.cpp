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
    const zvClientConfigFile file(content);
    for (const zvClientConfigFile::Line& line : file.lines()) {
        checkLine(line);
    }
    if (!m_bHasUrl) {
        addError(m_strFile, zvHomeCheckKind::missingKey, "\"local-server-url\" is missing");
    }
}

void zvClientConfigCheck::checkLine(const zvClientConfigFile::Line& line) {
    using Fault = zvClientConfigFile::Fault;
    const zvTextPosition position{line.number, 1};
    const zvCheckPlace place(m_strFile, position);
    if (line.fault == Fault::noPair || line.fault == Fault::noText) {
        addError(place, zvHomeCheckKind::invalidLine, line.faultText());
        return;
    }
    const zvClientConfigKey* const key = zvClientConfigKey::find(line.name);
    m_bHasUrl = m_bHasUrl || (key != nullptr && key->form == Form::url);
    if (key == nullptr) {
        addError(place, zvHomeCheckKind::unknownKey,
                 "there is no key " + quoted(line.name) +
                     zvNearestName::suggestion(line.name, knownKeys()).c_str());
    } else if (line.fault == Fault::repeatedKey) {
        addError(place, zvHomeCheckKind::repeatedKey, line.faultText());
    } else {
        checkValue(*key, line.value, {m_strFile, {line.number, line.name.size() + 2}});
    }
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
